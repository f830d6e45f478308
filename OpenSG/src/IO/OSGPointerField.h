#pragma once

#include <OpenSG/OSGFieldContainer.h>

OSG_BEGIN_NAMESPACE

/// A pointer field of a container that is being read: what it takes and how that gets in. Where the
/// owner's class has a method for it, that is what is called.
class PointerField
{
public:
    /// `field` is a field of pointers, or an attachment map, of the owner.
    PointerField(const FieldContainerPtr &owner, Field &field, bool keepsEmptyPlaces);

    /// Whether containers of the type can be put in.
    bool accepts(const FieldContainerType &type) const;
    /// Puts in what is accepted. Null takes away what a single pointer refers to; lists skip it
    /// unless they keep empty places, which those of children and attachments do not have.
    void add(const FieldContainerPtr &container);
    bool isList() const { return _kind != Kind::Single && _kind != Kind::Core; }
    /// Whether it must not lead back to its owner.
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
