#include <OpenSG/OSGField.h>

#include <OpenSG/OSGFieldContainerPtr.h>

OSG_BEGIN_NAMESPACE

FieldContainerPtr Field::getFieldContainer(UInt32 index) const
{
    const FieldContainerPtr *handle = findHandle(index);
    return handle ? *handle : FieldContainerPtr();
}

OSG_END_NAMESPACE
