#include <OpenSG/OSGField.h>

#include <OpenSG/OSGFieldContainer.h>

OSG_BEGIN_NAMESPACE

FieldContainerPtr Field::getFieldContainer(UInt32 index) const
{
    const FieldContainerPtr *handle = findHandle(index);
    return handle ? *handle : FieldContainerPtr();
}

bool Field::acceptsFieldContainer(const FieldContainerType &type) const
{
    return HandleText::leadsTo(getContentType(), type);
}

void Field::pushFieldContainer(const FieldContainerPtr &container)
{
    if (!container || acceptsFieldContainer(container->getType())) {
        storeHandle(container);
    }
}

OSG_END_NAMESPACE
