#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Translates container ids, when several processes share one scene.
class FieldContainerMapper
{
public:
    virtual ~FieldContainerMapper() = default;
    virtual UInt32 map(UInt32 uiId) const = 0;
};

/// Knows all container types, their groups and every living container.
class FieldContainerFactory
{
protected:
    typedef std::map<UInt32, FieldContainerType *> TypeMap;
    typedef std::vector<FieldContainerPtr> FieldContainerStore;

public:
    typedef TypeMap::iterator TypeMapIterator;

    static FieldContainerFactory *the();

    /// Initialised types only; exact names. NULL if there is none.
    FieldContainerType *findType(UInt32 uiTypeId) const;
    FieldContainerType *findType(const Char8 *szName) const;
    UInt32 getNumTypes() const { return static_cast<UInt32>(_types.size()); }
    TypeMapIterator beginTypes() { return _types.begin(); }
    TypeMapIterator endTypes() { return _types.end(); }

    /// Types that osgInit has not seen, since they came with a library loaded after it.
    FieldContainerType *findUninitializedType(const Char8 *szName) const;
    /// Makes them known. False, and a warning each, if types lack their parent.
    bool initializePendingTypes();

    /// Groups are numbered from 1 by first appearance; 0 and NULL stand for unknown ones.
    UInt16 findGroupId(const Char8 *szName) const;
    const Char8 *findGroupName(UInt16 uiGroupId) const;
    UInt16 getNumGroups() const { return static_cast<UInt16>(_groups.size()); }

    void setMapper(FieldContainerMapper *pMapper) { _mapper = pMapper; }

    /// Ids start at 1 and never recur. Null past the last id and for destroyed containers.
    FieldContainerPtr getContainer(UInt32 uiFieldContainerId) const;
    FieldContainerPtr getMappedContainer(UInt32 uiFieldContainerId) const;

    /// A new container of the type; null for unknown and abstract types and for those of another
    /// family.
    FieldContainerPtr createFieldContainer(const Char8 *name) const;
    NodePtr createNode(const Char8 *name) const;
    NodeCorePtr createNodeCore(const Char8 *name) const;
    AttachmentPtr createAttachment(const Char8 *name) const;

    /// Writes the type of this name, or all types, with the fields of each in the form that
    /// generate_containers.py reads, without defaults; to standard output if there is no `out`.
    void writeFCD(const Char8 *name = nullptr, std::ostream *out = nullptr);

    /// All containers by id; NULL before the first one exists.
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
