#include "kavoVariantEditorFactory.h"

#include "kavoIntSpinBox.h"
#include "kavoRealSpinBox.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <limits>

namespace {

// The property may be destroyed before the editor; the manager ignores unknown properties.
template <class Number, class SpinBox>
QWidget *bindToRow(SpinBox *editor, QtVariantPropertyManager *manager, QtProperty *property)
{
    editor->setRange(manager->attributeValue(property, "minimum").value<Number>(),
        manager->attributeValue(property, "maximum").value<Number>());
    editor->setValue(manager->value(property).value<Number>());
    QObject::connect(editor, qOverload<Number>(&SpinBox::valueChanged), manager,
        [manager, property](Number value) { manager->setValue(property, value); });
    QObject::connect(manager, &QtVariantPropertyManager::valueChanged, editor,
        [editor, property](QtProperty *changed, const QVariant &value) {
            const QSignalBlocker silent(editor);
            if (changed == property)
                editor->setValue(value.value<Number>());
        });
    return editor;
}

// The row of an unsigned 32-bit field stores its bits as a signed number.
QWidget *createIntEditor(QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent)
{
    auto *editor = new kavoIntSpinBox(parent);
    if (property->toolTip() == QLatin1String("SFUInt32"))
        editor->takeUnsigned();
    return bindToRow<int>(editor, manager, property);
}

} // namespace

QWidget *kavoVariantEditorFactory::createEditor(
    QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent)
{
    switch (manager->propertyType(property)) {
    case QVariant::Int:
        return createIntEditor(manager, property, parent);
    case QVariant::Double:
        return bindToRow<double>(new kavoRealSpinBox(parent), manager, property);
    case QVariant::String:
        return createTextEditor(manager, property, parent);
    default:
        return QtVariantEditorFactory::createEditor(manager, property, parent);
    }
}

QWidget *kavoVariantEditorFactory::createTextEditor(
    QtVariantPropertyManager *manager, QtProperty *property, QWidget *parent)
{
    QWidget *editor = QtVariantEditorFactory::createEditor(manager, property, parent);
    if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        line->setMaxLength(std::numeric_limits<int>::max());
        line->setText(manager->value(property).toString());
    }
    return editor;
}
