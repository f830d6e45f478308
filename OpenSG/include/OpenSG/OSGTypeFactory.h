#pragma once

#include <OpenSG/OSGTypeBase.h>

#include <map>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// The registry of all types. It exists from the construction of the first type to the end of the
/// process.
class TypeFactory
{
public:
    static TypeFactory *the();

    /// Returns the number of the new type. Returns 0, with a warning, if another type has the name.
    UInt32 registerType(TypeBase *type);
    void unregisterType(const TypeBase &type);

    TypeBase *findType(UInt32 typeId) const;
    TypeBase *findType(const Char8 *szName) const;
    /// Numbers are 1 to getNumTypes().
    UInt32 getNumTypes() const;

private:
    TypeFactory();

    std::vector<TypeBase *> _types;
    std::map<std::string, TypeBase *> _typesByName;
};

OSG_END_NAMESPACE
