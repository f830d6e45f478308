#pragma once

#include <qtvariantproperty.h>

/// The variant factory with editors that take and keep every value of a row: the stock ones round
/// real numbers, cut whole numbers off at the digit that leaves the range, and cut long texts.
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
