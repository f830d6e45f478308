#pragma once

#include <qtvariantproperty.h>

/// The variant manager with real numbers shown to their last digit. The stock one rounds them to at
/// most 13 decimals, so that 1e-20 would show as 0.
class kavoVariantPropertyManager : public QtVariantPropertyManager
{
    Q_OBJECT

public:
    using QtVariantPropertyManager::QtVariantPropertyManager;

protected:
    QString valueText(const QtProperty *property) const override;
};
