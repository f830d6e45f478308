#include "kavoJsonLinesReader.h"

#include "kavoTaskError.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("kavoJsonLinesReader", text);
}

std::string textOf(const QJsonValue &value)
{
    if (!value.isString())
        throw kavoTaskError(tr("a value that is no text"));
    return value.toString().toStdString();
}

osg::UInt32 idOf(const QJsonObject &object)
{
    const double id = object.value(QLatin1String("id")).toDouble(-1);
    if (id < 0 || id > std::numeric_limits<osg::UInt32>::max() || id != double(osg::UInt32(id)))
        throw kavoTaskError(tr("no id"));
    return osg::UInt32(id);
}

kavoTable::Row rowOf(const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        throw kavoTaskError(error.errorString());
    const QJsonObject object = document.object();
    if (!object.value(QLatin1String("values")).isObject())
        throw kavoTaskError(tr("no values"));
    kavoTable::Row row { 0, idOf(object), textOf(object.value(QLatin1String("path"))), {} };
    const QJsonObject values = object.value(QLatin1String("values")).toObject();
    for (auto member = values.begin(); member != values.end(); ++member) {
        const QJsonValue value = member.value();
        const QJsonArray list = value.isArray() ? value.toArray() : QJsonArray { value };
        for (int i = 0; i < list.size(); ++i)
            row.cells[{ member.key().toStdString(), i }] = textOf(list[i]);
    }
    return row;
}

}

kavoTable kavoJsonLinesReader::read(const std::string &text)
{
    kavoTable table;
    int number = 0;
    for (const QByteArray &line : QByteArray::fromStdString(text).split('\n')) {
        ++number;
        if (line.trimmed().isEmpty())
            continue;
        try {
            table.rows.push_back(rowOf(line));
            table.rows.back().line = number;
        } catch (const kavoTaskError &error) {
            throw kavoTaskError(tr("line %1: %2").arg(number).arg(error.message()));
        }
    }
    return table;
}
