#pragma once

#include <qtvariantproperty.h>

/// The variant factory with a kavoRealSpinBox for real numbers: the stock spin box rounds to the
/// manager's decimals, 13 at most.
class kavoVariantEditorFactory : public QtVariantEditorFactory
{
    Q_OBJECT

public:
    using QtVariantEditorFactory::QtVariantEditorFactory;

protected:
    QWidget *createEditor(
        QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent) override;
};
