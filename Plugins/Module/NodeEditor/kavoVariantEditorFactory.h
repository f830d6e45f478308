#pragma once

#include <qtvariantproperty.h>

/// Variant editor factory whose editors accept and keep every value of a row. The component's own
/// editors round real numbers, reject the digit with which a whole number leaves the range, and cut
/// long texts.
class kavoVariantEditorFactory : public QtVariantEditorFactory
{
    Q_OBJECT

public:
    using QtVariantEditorFactory::QtVariantEditorFactory;

protected:
    QWidget *createEditor(
        QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent) override;

private:
    QWidget *createTextEditor(
        QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent);
};
