#include "BenchRow.h"

#include <kavoCustomPropertyGLenum.h>

namespace {

void readValue(BenchRow &row, const QtProperty &property)
{
    QtAbstractPropertyManager *manager = property.propertyManager();
    if (const auto *enums = qobject_cast<QtGLenumPropertyManager *>(manager)) {
        row.manager = BenchRow::Enum;
        row.number = enums->value(&property);
    } else if (const auto *colors = qobject_cast<QtKavoColorPropertyManager *>(manager)) {
        row.manager = BenchRow::Color;
        row.color = colors->value(&property);
    } else {
        row.type = qobject_cast<QtVariantPropertyManager *>(manager)->propertyType(&property);
        row.text = property.valueText();
    }
}

BenchRow recordRow(const kavoFCEditorWidget &editor, QtProperty &property)
{
    BenchRow row;
    readValue(row, property);
    row.title = property.propertyName();
    row.toolTip = property.toolTip();
    row.open = editor.isExpanded(editor.items(&property).value(0));
    for (QtProperty *child : property.subProperties())
        row.children.push_back(recordRow(editor, *child));
    return row;
}

}

BenchRow BenchRow::record(const kavoFCEditorWidget &editor)
{
    return recordRow(editor, *editor.properties().value(0));
}

bool BenchRow::isGroup() const
{
    return toolTip.isEmpty() && manager == Variant
        && type == QtVariantPropertyManager::groupTypeId();
}

int BenchRow::count() const
{
    int count = 1;
    for (const BenchRow &child : children)
        count += child.count();
    return count;
}
