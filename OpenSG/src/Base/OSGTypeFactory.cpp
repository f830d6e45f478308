#include <OpenSG/OSGTypeFactory.h>

#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

TypeFactory::TypeFactory()
    : _types(1, nullptr)
{
}

// Never destroyed, because types that are static objects unregister after the end of main.
TypeFactory *TypeFactory::the()
{
    static TypeFactory *const factory = new TypeFactory;
    return factory;
}

UInt32 TypeFactory::registerType(TypeBase *type)
{
    if (!_typesByName.emplace(type->getCName(), type).second) {
        SWARNING << "A type named " << type->getName() << " exists already" << endLog;
        return 0;
    }
    _types.push_back(type);
    return getNumTypes();
}

void TypeFactory::unregisterType(const TypeBase &type)
{
    if (type.getId() != 0) {
        _typesByName.erase(type.getCName());
        _types[type.getId()] = nullptr;
    }
}

TypeBase *TypeFactory::findType(UInt32 typeId) const
{
    return typeId < _types.size() ? _types[typeId] : nullptr;
}

TypeBase *TypeFactory::findType(const Char8 *szName) const
{
    const auto found = szName ? _typesByName.find(szName) : _typesByName.end();
    return found != _typesByName.end() ? found->second : nullptr;
}

UInt32 TypeFactory::getNumTypes() const
{
    return static_cast<UInt32>(_types.size() - 1);
}

OSG_END_NAMESPACE
