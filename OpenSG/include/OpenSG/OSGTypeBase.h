#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGIDString.h>

OSG_BEGIN_NAMESPACE

/// A named type with a number. Content types, field types and container types get their numbers
/// from TypeFactory in the order of construction, so a number is valid for this run only. The
/// number is 0 if another type has the name already.
class TypeBase
{
public:
    TypeBase(const Char8 *szName, const Char8 *szParentName, const UInt32 uiNameSpace = 0);
    TypeBase(const TypeBase &) = delete;
    TypeBase &operator=(const TypeBase &) = delete;
    virtual ~TypeBase();

    UInt32 getId() const { return _id; }
    const IDString &getName() const { return _name; }
    const Char8 *getCName() const { return _name.str(); }
    const IDString &getParentName() const { return _parentName; }
    const Char8 *getCParentName() const { return _parentName.str(); }
    UInt32 getNameSpace() const { return 0; }

    /// Always false. Only container types know derivations, by their own overload.
    virtual bool isDerivedFrom(const TypeBase &other) const;

    bool operator==(const TypeBase &other) const { return _id == other._id; }
    bool operator!=(const TypeBase &other) const { return _id != other._id; }

private:
    IDString _name;
    IDString _parentName;
    UInt32 _id;
};

OSG_END_NAMESPACE
