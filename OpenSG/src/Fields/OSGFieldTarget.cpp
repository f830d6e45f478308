#include <OpenSG/OSGField.h>

#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <string_view>

OSG_BEGIN_NAMESPACE

FieldContainerPtr Field::getFieldContainer(UInt32 index) const
{
    const FieldContainerPtr *handle = findHandle(index);
    return handle ? *handle : FieldContainerPtr();
}

bool Field::acceptsFieldContainer(const FieldContainerType &type) const
{
    constexpr std::string_view suffix = "Ptr";
    std::string name = getContentType().getCName();
    const std::size_t end = name.size() - std::min(name.size(), suffix.size());
    if (name.compare(end, suffix.size(), suffix) != 0) {
        return false;
    }
    const FieldContainerType *target
        = FieldContainerFactory::the()->findType(name.erase(end).c_str());
    return target && type.isDerivedFrom(*target);
}

void Field::pushFieldContainer(const FieldContainerPtr &container)
{
    if (!container || acceptsFieldContainer(container->getType())) {
        storeHandle(container);
    }
}

OSG_END_NAMESPACE
