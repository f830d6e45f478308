#include "kavoFieldText.h"

#include <OpenSG/OSGFieldFactory.h>

#include <QSet>
#include <QStringList>

#include <memory>
#include <string>

namespace kavoFieldText {

namespace {

const QSet<QString> floatVectors { "SFVec2f", "SFPnt2f", "SFVec3f", "SFPnt3f", "SFVec4f",
    "SFPnt4f" };

QString typeNameOf(const osg::Field &field)
{
    return field.getType().getCName();
}

// Lists of numbers are shown and edited element by element.
bool isNumberList(const QString &typeName)
{
    return typeName.startsWith(QLatin1String("MFReal"))
        || typeName.startsWith(QLatin1String("MFInt"))
        || typeName.startsWith(QLatin1String("MFUInt"));
}

QStringList partsOf(QString text)
{
    text.replace(',', ' ');
    return text.split(' ', Qt::SkipEmptyParts);
}

QString textOf(const osg::Field &field)
{
    std::string text;
    field.getValueByStr(text);
    return QString::fromStdString(text);
}

QString summaryOf(const osg::Field &field)
{
    return QString::asprintf(
        "<type=%s> <size = %zu>", field.getContentType().getCName(), std::size_t(field.getSize()));
}

bool isQuoted(const std::string &text)
{
    return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

// The library writes strings with quotes but reads them without.
std::string inputFor(const osg::Field &field, const std::string &text)
{
    if (typeNameOf(field) != "SFString" || !isQuoted(text))
        return text;
    return isQuoted(textOf(field).toStdString()) ? text.substr(1, text.size() - 2) : text;
}

// osg::Field has no clear(). A type without a creator cannot be cleared.
bool clear(osg::Field &field)
{
    const std::unique_ptr<osg::Field> empty(
        osg::FieldFactory::the().createField(field.getType().getId()));
    if (empty)
        field.setAbstrValue(*empty);
    return bool(empty);
}

bool writeList(osg::Field &field, const QString &text)
{
    const bool isSummary = text.startsWith(QLatin1String("<type="));
    if (isSummary || !isNumberList(typeNameOf(field)) || !clear(field))
        return false;
    for (const QString &part : partsOf(text))
        field.pushValueByStr(part.toUtf8().constData());
    return true;
}

} // namespace

bool isSingle(const osg::Field &field)
{
    return field.getCardinality() == osg::FieldType::SINGLE_FIELD;
}

QString valueOf(const osg::Field &field)
{
    const QString typeName = typeNameOf(field);
    const bool listsNumbers = isNumberList(typeName) && field.getSize() <= maxListedElements;
    if (isSingle(field) || listsNumbers)
        return beautified(typeName, textOf(field));
    return typeName.startsWith(QLatin1String("MFString")) ? textOf(field) : summaryOf(field);
}

QString sizeOf(const osg::Field &field)
{
    return QString::asprintf("<size = %zu>", std::size_t(field.getSize()));
}

QString beautified(const QString &typeName, const QString &text)
{
    if (!typeName.startsWith(QLatin1String("MFReal")) && !floatVectors.contains(typeName))
        return text;
    QStringList parts = partsOf(text);
    for (QString &part : parts) {
        bool isNumber = false;
        const double number = part.toDouble(&isNumber);
        if (isNumber)
            part = QString::number(number, 'g', 6);
    }
    return parts.join(", ");
}

bool write(osg::Field &field, const QString &text)
{
    if (!isSingle(field))
        return writeList(field, text);
    field.pushValueByStr(inputFor(field, text.toStdString()).c_str());
    return true;
}

} // namespace kavoFieldText
