#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Translates container ids if several processes share a scene.
class FieldContainerMapper
{
public:
    virtual ~FieldContainerMapper() = default;
    virtual UInt32 map(UInt32 uiId) const = 0;
};

/// Knows all container types, their groups and all existing containers.
class FieldContainerFactory
{
protected:
    typedef std::map<UInt32, FieldContainerType *> TypeMap;
    typedef std::vector<FieldContainerPtr> FieldContainerStore;

public:
    typedef TypeMap::iterator TypeMapIterator;

    static FieldContainerFactory *the();

    /// Finds initialized types only. Names must match exactly. Returns NULL if there is none.
    FieldContainerType *findType(UInt32 uiTypeId) const;
    FieldContainerType *findType(const Char8 *szName) const;
    UInt32 getNumTypes() const { return static_cast<UInt32>(_types.size()); }
    TypeMapIterator beginTypes() { return _types.begin(); }
    TypeMapIterator endTypes() { return _types.end(); }

    /// Finds a type that is not initialized, because its library was loaded after osgInit.
    FieldContainerType *findUninitializedType(const Char8 *szName) const;
    /// Initializes these types. If a type lacks its parent, writes a warning and returns false.
    bool initializePendingTypes();

    /// Groups are numbered from 1, in the order of their first type. Unknown groups give 0 and
    /// NULL.
    UInt16 findGroupId(const Char8 *szName) const;
    const Char8 *findGroupName(UInt16 uiGroupId) const;
    UInt16 getNumGroups() const { return static_cast<UInt16>(_groups.size()); }

    void setMapper(FieldContainerMapper *pMapper) { _mapper = pMapper; }

    /// Ids start at 1 and are never used again. Returns null for unknown ids and destroyed
    /// containers.
    FieldContainerPtr getContainer(UInt32 uiFieldContainerId) const;
    FieldContainerPtr getMappedContainer(UInt32 uiFieldContainerId) const;

    /// Creates a container of the type. Returns null if the type is unknown or abstract, or if it
    /// is not a node, core or attachment as the function's name says.
    FieldContainerPtr createFieldContainer(const Char8 *name) const;
    NodePtr createNode(const Char8 *name) const;
    NodeCorePtr createNodeCore(const Char8 *name) const;
    AttachmentPtr createAttachment(const Char8 *name) const;

    /// Writes the type of this name, or all types for NULL, with their fields. The form is that of
    /// .fcd files (generate_containers.py), without defaults. Writes to standard output if `out` is
    /// NULL.
    void writeFCD(const Char8 *name = nullptr, std::ostream *out = nullptr);

    /// Returns all containers by id, or NULL before the first container is created.
    const FieldContainerStore *getFieldContainerStore() const;

private:
    friend class FieldContainer;
    friend class FieldContainerType;

    FieldContainerFactory() = default;

    UInt16 registerGroup(const Char8 *szName);
    void registerType(FieldContainerType *type);
    void unregisterType(FieldContainerType *type);
    bool initializeType(FieldContainerType *type);
    UInt32 registerContainer(const FieldContainerPtr &container);
    void unregisterContainer(UInt32 id) { _store[id] = NullFC; }

    TypeMap _types;
    std::map<std::string, FieldContainerType *> _typesByName;
    std::vector<FieldContainerType *> _pendingTypes;
    std::vector<std::string> _groups;
    FieldContainerStore _store;
    FieldContainerMapper *_mapper = nullptr;
};

OSG_END_NAMESPACE
