#include "kavoVariantPropertyManager.h"

#include "kavoRealText.h"

QString kavoVariantPropertyManager::valueText(const QtProperty *property) const
{
    if (propertyType(property) == QVariant::Double)
        return kavoRealText(value(property).toDouble(), QLocale());
    return QtVariantPropertyManager::valueText(property);
}
