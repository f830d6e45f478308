#pragma once

#include <qtvariantproperty.h>

/// Variant manager that shows real numbers with all digits; the component's own rounds them to at
/// most 13 decimals. Its text rows are as cheap as others; the component's own creates a line edit
/// and a regular expression for each.
class kavoVariantPropertyManager : public QtVariantPropertyManager
{
    Q_OBJECT

public:
    using QtVariantPropertyManager::QtVariantPropertyManager;

protected:
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
};
