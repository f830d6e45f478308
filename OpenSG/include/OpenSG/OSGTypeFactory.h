#pragma once

#include <OpenSG/OSGTypeBase.h>

#include <map>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// The registry of all types. It exists from the first type's construction to the end of the
/// process, whatever the order in which translation units are initialised.
class TypeFactory
{
public:
    static TypeFactory *the();

    /// The new type's number; 0, and a warning, if another type has the name.
    UInt32 registerType(TypeBase *type);
    void unregisterType(const TypeBase &type);

    TypeBase *findType(UInt32 typeId) const;
    TypeBase *findType(const Char8 *szName) const;
    /// Numbers handed out so far; they run from 1 to this.
    UInt32 getNumTypes() const;

private:
    TypeFactory();

    std::vector<TypeBase *> _types;
    std::map<std::string, TypeBase *> _typesByName;
};

OSG_END_NAMESPACE
