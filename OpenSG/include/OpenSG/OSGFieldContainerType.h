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

/// Type of a container class, a static object of the class. Its constructor only registers it.
/// osgInit initializes all types: it finds the parent by name, inherits its descriptions and
/// creates the prototype, from which new containers are copied.
/// FieldContainerFactory::initializePendingTypes does the same for types of a library that is
/// loaded later.
class FieldContainerType : public DataType
{
public:
    /// Without a group name the type has its own group. Without a prototype creator it is abstract.
    /// `pDesc` points to `uiDescByteCounter` bytes of description pointers. The type owns these
    /// descriptions.
    FieldContainerType(const Char8 *szName, const Char8 *szParentName = nullptr,
        const Char8 *szGroupName = nullptr, PrototypeCreateF fPrototypeCreate = nullptr,
        InitContainerF fInitMethod = nullptr, FieldDescription **pDesc = nullptr,
        UInt32 uiDescByteCounter = 0, bool bDescsAddable = false);
    ~FieldContainerType() override;

    /// A container has only one attachment of each group.
    UInt16 getGroupId() const { return _groupId; }
    FieldContainerType *getParent() const { return _parent; }

    /// Field ids are 1 to getNumFieldDescs(), inherited fields first. Returns NULL for other ids.
    FieldDescription *getFieldDescription(UInt32 uiFieldId);
    const FieldDescription *getFieldDescription(UInt32 uiFieldId) const;
    FieldDescription *findFieldDescription(const Char8 *szFieldName);
    const FieldDescription *findFieldDescription(const Char8 *szFieldName) const;
    UInt32 getNumFieldDescs() const { return static_cast<UInt32>(_descriptions.size()); }

    /// Returns the id of the new field. Returns 0 if the type was constructed without
    /// `bDescsAddable`, if the name exists already or if the mask has no free bit.
    UInt32 addDescription(const FieldDescription &description);
    /// Removes the last description that was added. Others cannot be removed, because ids would
    /// change.
    bool subDescription(UInt32 uiFieldId);

    FieldContainerPtr getPrototype() const { return _prototype; }
    /// The type holds a reference to its prototype.
    bool setPrototype(FieldContainerPtr prototype);

    bool isInitialized() const { return _initialized; }
    bool isAbstract() const { return !_prototype; }
    /// Always false. Only the overload for container types knows derivations.
    bool isDerivedFrom(const TypeBase &other) const override;
    bool isDerivedFrom(const FieldContainerType &other) const;

    bool isNode() const { return _family == Family::Node; }
    bool isNodeCore() const { return _family == Family::NodeCore; }
    bool isAttachment() const { return _family == Family::Attachment; }

    /// Creates a copy of the prototype. Returns null if the type is abstract or is not a node, core
    /// or attachment as the function's name says.
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
