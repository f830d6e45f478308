#include "kavoVariantEditorFactory.h"

#include "kavoRealSpinBox.h"

#include <QSignalBlocker>

QWidget *kavoVariantEditorFactory::createEditor(
    QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent)
{
    if (manager->propertyType(property) != QVariant::Double)
        return QtVariantEditorFactory::createEditor(manager, property, parent);

    auto *editor = new kavoRealSpinBox(parent);
    editor->setRange(manager->attributeValue(property, "minimum").toDouble(),
        manager->attributeValue(property, "maximum").toDouble());
    editor->setSingleStep(manager->attributeValue(property, "singleStep").toDouble());
    editor->setValue(manager->value(property).toDouble());

    // The property may die before the editor; the manager ignores properties that it does not hold.
    connect(editor, qOverload<double>(&QDoubleSpinBox::valueChanged), manager,
        [manager, property](double value) { manager->setValue(property, value); });
    connect(manager, &QtVariantPropertyManager::valueChanged, editor,
        [editor, property](QtProperty *changed, const QVariant &value) {
            const QSignalBlocker silent(editor);
            if (changed == property)
                editor->setValue(value.toDouble());
        });
    return editor;
}
