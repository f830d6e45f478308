#include "kavoFCEditorWidget.h"

#include "kavoCustomPropertyGLenum.h"
#include "kavoFieldText.h"

#include <QHash>
#include <QTextStream>

#include <cfloat>
#include <climits>
#include <cmath>
#include <locale>
#include <sstream>

namespace {

enum class RowKind { Text, Flag, Integer, Real, Box, Quaternion, Enum, Color };

struct RowType
{
    RowKind kind = RowKind::Text;
    double minimum = 0;
    double maximum = 0;
};

// Kind of row and range of numbers for each field type. All other types get a text row. An unsigned
// 32-bit number is stored as the signed number with the same bits, because the manager has no
// unsigned type.
const QHash<QString, RowType> rowTypes {
    { "SFBool", { RowKind::Flag } },
    { "SFInt8", { RowKind::Integer, SCHAR_MIN, SCHAR_MAX } },
    { "SFUInt8", { RowKind::Integer, 0, UCHAR_MAX } },
    { "SFInt16", { RowKind::Integer, SHRT_MIN, SHRT_MAX } },
    { "SFUInt16", { RowKind::Integer, 0, USHRT_MAX } },
    { "SFInt32", { RowKind::Integer, INT_MIN, INT_MAX } },
    { "SFUInt32", { RowKind::Integer, INT_MIN, INT_MAX } },
    { "SFReal32", { RowKind::Real, -FLT_MAX, FLT_MAX } },
    { "SFReal64", { RowKind::Real, -DBL_MAX, DBL_MAX } },
    { "SFTime", { RowKind::Real, -DBL_MAX, DBL_MAX } },
    { "SFBoxVolume", { RowKind::Box } },
    { "SFQuaternion", { RowKind::Quaternion } },
    { "SFGLenum", { RowKind::Enum } },
    { "SFColor3f", { RowKind::Color } },
    { "SFColor4f", { RowKind::Color } },
};

// Range of the numbers in boxes and quaternions.
constexpr RowType componentType { RowKind::Real, -FLT_MAX, FLT_MAX };

struct RowSource
{
    const QString &name;
    const QString &typeName;
    const QString &valueText;
};

// The library writes numbers in the C locale.
std::istringstream numbersOf(const RowSource &source)
{
    std::istringstream numbers(source.valueText.toStdString());
    numbers.imbue(std::locale::classic());
    return numbers;
}

// Sets the range of the field type. The manager's default range is that of an int.
void setRange(QtVariantProperty *row, const RowType &type)
{
    row->setAttribute("minimum", type.minimum);
    if (type.maximum != INT_MAX)
        row->setAttribute("maximum", type.maximum);
}

// Rows of multi fields would be disabled here. Only single fields have rows of these kinds.
QtProperty *finishRow(QtVariantProperty *row, const RowSource &source)
{
    row->setValue(source.valueText);
    row->setToolTip(source.typeName);
    if (!source.typeName.startsWith(QLatin1String("SF")))
        row->setEnabled(false);
    return row;
}

QtProperty *makeFlagRow(QtVariantPropertyManager &manager, const RowSource &source)
{
    return finishRow(manager.addProperty(QVariant::Bool, source.name), source);
}

QtProperty *makeTextRow(QtVariantPropertyManager &manager, const RowSource &source)
{
    QtVariantProperty *row = manager.addProperty(QVariant::String, source.name);
    row->setValue(source.valueText);
    row->setToolTip(source.typeName);
    return row;
}

// The C library writes the usual NaN as "-nan", which QString and QTextStream cannot read.
QString withoutSignOfNan(QString text)
{
    return text.replace("-nan", "nan", Qt::CaseInsensitive);
}

// Infinity and NaN fit in no range. They are shown as text, which can be edited.
QtProperty *makeNumberRow(
    QtVariantPropertyManager &manager, const RowType &type, const RowSource &source)
{
    if (!std::isfinite(withoutSignOfNan(source.valueText).toDouble()))
        return makeTextRow(manager, source);
    const auto kind = type.kind == RowKind::Real ? QVariant::Double : QVariant::Int;
    QtVariantProperty *row = manager.addProperty(kind, source.name);
    setRange(row, type);
    return finishRow(row, source);
}

QtProperty *makeEnumRow(QtGLenumPropertyManager &manager, const RowSource &source)
{
    unsigned int value = 0;
    numbersOf(source) >> value;
    QtProperty *row = manager.addProperty(source.name);
    manager.setValue(row, value);
    row->setToolTip(source.typeName);
    return row;
}

// Alpha is 1 for a colour with three components.
QtProperty *makeColorRow(QtKavoColorPropertyManager &manager, const RowSource &source)
{
    QtProperty *row = manager.addProperty(source.name);
    colorVal color { 0, 0, 0, 1 };
    std::istringstream numbers = numbersOf(source);
    numbers >> color.r >> color.g >> color.b;
    if (source.typeName == "SFColor4f")
        numbers >> color.a;
    manager.setValue(row, color);
    row->setToolTip(source.typeName);
    return row;
}

} // namespace

QtProperty *kavoFCEditorWidget::createPropertyItem(
    const QString &name, const QString &typeName, const QString &valueText)
{
    const RowSource source { name, typeName, valueText };
    const auto numberGroup = [&](const QString &subNames) {
        return createPropertyList<float>(name, typeName, QVariant::Double, valueText, subNames);
    };
    const RowType type = rowTypes.value(typeName);
    switch (type.kind) {
    case RowKind::Flag:
        return makeFlagRow(*m_variantManager, source);
    case RowKind::Integer:
    case RowKind::Real:
        return makeNumberRow(*m_variantManager, type, source);
    case RowKind::Box:
        return finishRow(numberGroup("min x,min y,min z,max x,max y,max z"), source);
    case RowKind::Quaternion:
        return finishRow(numberGroup("x,y,z,w"), source);
    case RowKind::Enum:
        return makeEnumRow(*m_enumManager, source);
    case RowKind::Color:
        return makeColorRow(*m_colorManager, source);
    case RowKind::Text:
        break;
    }
    return makeTextRow(*m_variantManager, source);
}

template <class T>
QtVariantProperty *kavoFCEditorWidget::createPropertyList(const QString &name,
    const QString &typeName, int propertyType, const QString &valueText, const QString &subNames)
{
    QtVariantProperty *group = m_variantManager->addProperty(
        QtVariantPropertyManager::groupTypeId(), name + " (" + typeName + ')');
    QTextStream text(withoutSignOfNan(valueText).toUtf8(), QIODevice::ReadOnly);
    for (int k = 0;; ++k) {
        const QString subName = subNames.section(',', k, k);
        if (subName.isEmpty())
            return group;
        T number = 0;
        text >> number;
        const int type = std::isfinite(number) ? propertyType : int(QVariant::String);
        QtVariantProperty *row = m_variantManager->addProperty(type, subName);
        setRange(row, componentType);
        row->setValue(QVariant(number));
        group->addSubProperty(row);
    }
}

template QtVariantProperty *kavoFCEditorWidget::createPropertyList<float>(
    const QString &, const QString &, int, const QString &, const QString &);

QString kavoFCEditorWidget::beautifyFloats(const QString &typeName, const QString &valueText)
{
    return kavoFieldText::beautified(typeName, valueText);
}
