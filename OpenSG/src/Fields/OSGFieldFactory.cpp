#include <OpenSG/OSGFieldFactory.h>

#include <OpenSG/OSGTypeFactory.h>

OSG_BEGIN_NAMESPACE

namespace {

Field *createOf(const FieldType *type)
{
    return type ? type->createField() : nullptr;
}

} // namespace

FieldFactory &FieldFactory::the()
{
    static FieldFactory factory;
    return factory;
}

Field *FieldFactory::createField(UInt32 typeId)
{
    return createOf(getFieldType(typeId));
}

Field *FieldFactory::createField(const Char8 *szName)
{
    return createOf(getFieldType(szName));
}

UInt32 FieldFactory::getNFieldTypes()
{
    UInt32 count = 0;
    for (UInt32 id = 1; id <= TypeFactory::the()->getNumTypes(); ++id) {
        count += getFieldType(id) ? 1 : 0;
    }
    return count;
}

FieldType *FieldFactory::getFieldType(UInt32 typeId)
{
    return dynamic_cast<FieldType *>(TypeFactory::the()->findType(typeId));
}

FieldType *FieldFactory::getFieldType(const Char8 *szName)
{
    return dynamic_cast<FieldType *>(TypeFactory::the()->findType(szName));
}

const Char8 *FieldFactory::getFieldTypeName(UInt32 typeId)
{
    const FieldType *type = getFieldType(typeId);
    return type ? type->getCName() : nullptr;
}

OSG_END_NAMESPACE
