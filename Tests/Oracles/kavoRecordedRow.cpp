#include "kavoRecordedRow.h"

#include <kavoCustomPropertyGLenum.h>

namespace {

void readValue(kavoRecordedRow &row, const QtProperty &property)
{
    QtAbstractPropertyManager *manager = property.propertyManager();
    if (const auto *enums = qobject_cast<QtGLenumPropertyManager *>(manager)) {
        row.manager = kavoRecordedRow::Enum;
        row.number = enums->value(&property);
    } else if (const auto *colors = qobject_cast<QtKavoColorPropertyManager *>(manager)) {
        row.manager = kavoRecordedRow::Color;
        row.color = colors->value(&property);
    } else {
        row.type = qobject_cast<QtVariantPropertyManager *>(manager)->propertyType(&property);
        row.text = property.valueText();
    }
}

kavoRecordedRow recordRow(const kavoFCEditorWidget &editor, QtProperty &property)
{
    kavoRecordedRow row;
    readValue(row, property);
    row.title = property.propertyName();
    row.toolTip = property.toolTip();
    row.open = editor.isExpanded(editor.items(&property).value(0));
    for (QtProperty *child : property.subProperties())
        row.children.push_back(recordRow(editor, *child));
    return row;
}

} // namespace

kavoRecordedRow kavoRecordedRow::record(const kavoFCEditorWidget &editor)
{
    return recordRow(editor, *editor.properties().value(0));
}

bool kavoRecordedRow::isGroup() const
{
    return toolTip.isEmpty() && manager == Variant
        && type == QtVariantPropertyManager::groupTypeId();
}

int kavoRecordedRow::count() const
{
    int count = 1;
    for (const kavoRecordedRow &child : children)
        count += child.count();
    return count;
}
