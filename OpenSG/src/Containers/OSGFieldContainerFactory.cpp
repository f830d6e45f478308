#include <OpenSG/OSGFieldContainerFactory.h>

#include "Base/OSGStartupPhases.h"

#include <OpenSG/OSGThread.h>

#include <algorithm>
#include <string>

OSG_BEGIN_NAMESPACE

namespace {

// The creation of prototypes is no change that clients should see.
bool initializeContainerTypes()
{
    const bool complete = FieldContainerFactory::the()->initializePendingTypes();
    Thread::getCurrentChangeList()->clearAll();
    return complete;
}

const StartupRegistration containerTypes(StartupPhase::ContainerTypes, initializeContainerTypes);

} // namespace

// Never destroyed, because handles and types that are static objects are destroyed after the end of
// main.
FieldContainerFactory *FieldContainerFactory::the()
{
    static FieldContainerFactory *const factory = new FieldContainerFactory;
    return factory;
}

FieldContainerType *FieldContainerFactory::findType(UInt32 uiTypeId) const
{
    const auto found = _types.find(uiTypeId);
    return found != _types.end() ? found->second : nullptr;
}

FieldContainerType *FieldContainerFactory::findType(const Char8 *szName) const
{
    const auto found = szName ? _typesByName.find(szName) : _typesByName.end();
    return found != _typesByName.end() ? found->second : nullptr;
}

FieldContainerType *FieldContainerFactory::findUninitializedType(const Char8 *szName) const
{
    const auto found = std::find_if(_pendingTypes.begin(), _pendingTypes.end(),
        [name = std::string(szName ? szName : "")](
            const FieldContainerType *type) { return name == type->getCName(); });
    return found != _pendingTypes.end() ? *found : nullptr;
}

bool FieldContainerFactory::initializePendingTypes()
{
    bool complete = true;
    const std::vector<FieldContainerType *> pending = _pendingTypes;
    for (FieldContainerType *type : pending) {
        complete &= initializeType(type);
    }
    return complete;
}

bool FieldContainerFactory::initializeType(FieldContainerType *type)
{
    if (!type->initialize()) {
        return false;
    }
    _types.emplace(type->getId(), type);
    _typesByName.emplace(type->getCName(), type);
    _pendingTypes.erase(
        std::remove(_pendingTypes.begin(), _pendingTypes.end(), type), _pendingTypes.end());
    return true;
}

UInt16 FieldContainerFactory::findGroupId(const Char8 *szName) const
{
    const auto found = std::find(_groups.begin(), _groups.end(), szName ? szName : "");
    return found != _groups.end() ? static_cast<UInt16>(found - _groups.begin() + 1) : 0;
}

const Char8 *FieldContainerFactory::findGroupName(UInt16 uiGroupId) const
{
    const bool known = uiGroupId > 0 && uiGroupId <= _groups.size();
    return known ? _groups[uiGroupId - 1].c_str() : nullptr;
}

FieldContainerPtr FieldContainerFactory::getContainer(UInt32 uiFieldContainerId) const
{
    return uiFieldContainerId < _store.size() ? _store[uiFieldContainerId] : FieldContainerPtr();
}

FieldContainerPtr FieldContainerFactory::getMappedContainer(UInt32 uiFieldContainerId) const
{
    return getContainer(_mapper ? _mapper->map(uiFieldContainerId) : uiFieldContainerId);
}

FieldContainerPtr FieldContainerFactory::createFieldContainer(const Char8 *name) const
{
    const FieldContainerType *type = findType(name);
    return type ? type->createFieldContainer() : FieldContainerPtr();
}

NodePtr FieldContainerFactory::createNode(const Char8 *name) const
{
    const FieldContainerType *type = findType(name);
    return type ? type->createNode() : NodePtr();
}

NodeCorePtr FieldContainerFactory::createNodeCore(const Char8 *name) const
{
    const FieldContainerType *type = findType(name);
    return type ? type->createNodeCore() : NodeCorePtr();
}

AttachmentPtr FieldContainerFactory::createAttachment(const Char8 *name) const
{
    const FieldContainerType *type = findType(name);
    return type ? type->createAttachment() : AttachmentPtr();
}

const FieldContainerFactory::FieldContainerStore *
FieldContainerFactory::getFieldContainerStore() const
{
    return _store.empty() ? nullptr : &_store;
}

UInt16 FieldContainerFactory::registerGroup(const Char8 *szName)
{
    if (const UInt16 known = findGroupId(szName)) {
        return known;
    }
    _groups.push_back(szName);
    return getNumGroups();
}

void FieldContainerFactory::registerType(FieldContainerType *type)
{
    if (type->getId() != 0) {
        _pendingTypes.push_back(type);
    }
}

void FieldContainerFactory::unregisterType(FieldContainerType *type)
{
    if (findType(type->getId()) == type) {
        _types.erase(type->getId());
        _typesByName.erase(type->getCName());
    }
    _pendingTypes.erase(
        std::remove(_pendingTypes.begin(), _pendingTypes.end(), type), _pendingTypes.end());
}

UInt32 FieldContainerFactory::registerContainer(const FieldContainerPtr &container)
{
    if (_store.empty()) {
        _store.push_back(NullFC);
    }
    _store.push_back(container);
    return static_cast<UInt32>(_store.size() - 1);
}

OSG_END_NAMESPACE
