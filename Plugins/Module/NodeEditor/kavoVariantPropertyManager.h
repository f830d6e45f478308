#pragma once

#include <qtvariantproperty.h>

/// The variant manager with real numbers shown to their last digit (the stock one rounds them to at
/// most 13 decimals, so that 1e-20 would show as 0) and with text rows that cost no more than
/// others (the stock one makes a line edit to find out what it would show, and a regular expression
/// for each row).
class kavoVariantPropertyManager : public QtVariantPropertyManager
{
    Q_OBJECT

public:
    using QtVariantPropertyManager::QtVariantPropertyManager;

protected:
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
};
