#pragma once

#include <OpenSG/OSGFieldContainer.h>

OSG_BEGIN_NAMESPACE

/// A pointer field of a container that is being read. It knows which containers the field accepts
/// and how to add them. It calls the method of the owner's class where there is one.
class PointerField
{
public:
    /// `field` is a pointer field or an attachment map of `owner`.
    PointerField(const FieldContainerPtr &owner, Field &field, bool keepsEmptyPlaces);

    bool accepts(const FieldContainerType &type) const;
    /// Adds a container of an accepted type, or null. Null clears a single pointer. Lists skip null
    /// unless they keep empty places; lists of children and attachments always skip it.
    void add(const FieldContainerPtr &container);
    bool isList() const { return _kind != Kind::Single && _kind != Kind::Core; }
    /// True if a container of the type must not refer back to the owner, directly or indirectly.
    bool mustBeTree(const FieldContainerType &type) const;

private:
    enum class Kind { Attachments, Children, Core, Single, List };

    static Kind kindOf(const FieldContainerPtr &owner, const Field &field);

    FieldContainerPtr _owner;
    Field &_field;
    bool _keepsEmptyPlaces;
    Kind _kind;
};

OSG_END_NAMESPACE
