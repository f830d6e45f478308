#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGNodeCorePtr.h>
#include <OpenSG/OSGNodePtr.h>

#include <memory>
#include <vector>

OSG_BEGIN_NAMESPACE

typedef void (*InitContainerF)();
typedef FieldContainerPtr (*PrototypeCreateF)();

/// Type of a container class: a static object of the class. Its construction only announces the
/// type. osgInit, or FieldContainerFactory::initializePendingTypes for types that a library
/// loaded later brings, resolves the parent's name, inherits its descriptions and makes the
/// prototype that new containers are copies of.
class FieldContainerType : public DataType
{
public:
    /// Without a group name the type is a group of its own; without a prototype creator it is
    /// abstract. `pDesc` points to `uiDescByteCounter` bytes of description pointers, which the
    /// type takes over.
    FieldContainerType(const Char8 *szName, const Char8 *szParentName = nullptr,
        const Char8 *szGroupName = nullptr, PrototypeCreateF fPrototypeCreate = nullptr,
        InitContainerF fInitMethod = nullptr, FieldDescription **pDesc = nullptr,
        UInt32 uiDescByteCounter = 0, bool bDescsAddable = false);
    ~FieldContainerType() override;

    /// Attachments are keyed by group: all types of one group exclude each other at a container.
    UInt16 getGroupId() const { return _groupId; }
    FieldContainerType *getParent() const { return _parent; }

    /// Field ids run from 1 to getNumFieldDescs(), inherited fields first; NULL for others.
    FieldDescription *getFieldDescription(UInt32 uiFieldId);
    const FieldDescription *getFieldDescription(UInt32 uiFieldId) const;
    FieldDescription *findFieldDescription(const Char8 *szFieldName);
    const FieldDescription *findFieldDescription(const Char8 *szFieldName) const;
    UInt32 getNumFieldDescs() const { return static_cast<UInt32>(_descriptions.size()); }

    /// Only for types made with `bDescsAddable`. The id of the new field; 0 if refused, as it is
    /// for a name that is taken and when the mask has no bit left.
    UInt32 addDescription(const FieldDescription &description);
    /// Of those that were added the last can go; the ids of others must not change.
    bool subDescription(UInt32 uiFieldId);

    FieldContainerPtr getPrototype() const { return _prototype; }
    /// The type holds a reference to its prototype.
    bool setPrototype(FieldContainerPtr prototype);

    bool isInitialized() const { return _initialized; }
    bool isAbstract() const { return !_prototype; }
    /// Always false: a derivation shows only between container types.
    bool isDerivedFrom(const TypeBase &other) const override;
    bool isDerivedFrom(const FieldContainerType &other) const;

    bool isNode() const { return _family == Family::Node; }
    bool isNodeCore() const { return _family == Family::NodeCore; }
    bool isAttachment() const { return _family == Family::Attachment; }

    /// A copy of the prototype; null for an abstract type and for one of another family.
    FieldContainerPtr createFieldContainer() const;
    NodePtr createNode() const;
    NodeCorePtr createNodeCore() const;
    AttachmentPtr createAttachment() const;

    virtual void dump(UInt32 uiIndent = 0, const BitVector bvFlags = 0) const;

private:
    friend class FieldContainerFactory;
    enum class Family { None, Node, NodeCore, Attachment };

    bool initialize();
    bool inheritFromParent();
    bool inheritFrom(FieldContainerType *parent);
    void addOwnDescriptions();
    Family findFamily() const;

    UInt16 _groupId;
    PrototypeCreateF _createPrototype;
    std::vector<std::unique_ptr<FieldDescription>> _ownDescriptions;
    bool _descriptionsAddable;

    FieldContainerType *_parent = nullptr;
    std::vector<FieldDescription *> _descriptions;
    FieldContainerPtr _prototype;
    Family _family = Family::None;
    bool _initialized = false;
    bool _isInitializing = false;
};

OSG_END_NAMESPACE
