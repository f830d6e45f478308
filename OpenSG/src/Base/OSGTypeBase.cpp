#include <OpenSG/OSGTypeBase.h>

#include <OpenSG/OSGTypeFactory.h>

OSG_BEGIN_NAMESPACE

TypeBase::TypeBase(const Char8 *szName, const Char8 *szParentName, const UInt32)
    : _name(szName)
    , _parentName(szParentName)
    , _id(TypeFactory::the()->registerType(this))
{
}

TypeBase::~TypeBase()
{
    TypeFactory::the()->unregisterType(*this);
}

bool TypeBase::isDerivedFrom(const TypeBase &) const
{
    return false;
}

OSG_END_NAMESPACE
