#include "Tables/kavoJsonLinesReader.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoUtf8.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <map>
#include <utility>

namespace {

std::string textOf(const QJsonValue &value)
{
    if (!value.isString())
        throw kavoTaskError(kavoJsonLinesReader::tr("a value that is no text"));
    return value.toString().toStdString();
}

osg::UInt32 idOf(const QJsonObject &object)
{
    const double id = object.value(QLatin1String("id")).toDouble(-1);
    if (id < 0 || id > std::numeric_limits<osg::UInt32>::max() || id != double(osg::UInt32(id)))
        throw kavoTaskError(kavoJsonLinesReader::tr("no id"));
    return osg::UInt32(id);
}

// A byte order mark that begins a text gets lost in the parser unless it is escaped.
QJsonObject objectOf(QByteArray line)
{
    QJsonParseError error;
    const QJsonDocument document
        = QJsonDocument::fromJson(line.replace("\xEF\xBB\xBF", "\\ufeff"), &error);
    if (error.error != QJsonParseError::NoError)
        throw kavoTaskError(error.errorString());
    return document.object();
}

}

kavoTable kavoJsonLinesReader::read(const std::string &text)
{
    kavoJsonLinesReader reader;
    int number = 0;
    for (const QByteArray &line : QByteArray::fromStdString(text).split('\n')) {
        ++number;
        if (line.trimmed().isEmpty())
            continue;
        try {
            reader.addRow(objectOf(line), number);
        } catch (const kavoTaskError &error) {
            throw kavoTaskError(tr("line %1: %2").arg(number).arg(error.message()));
        }
    }
    return std::move(reader.m_table);
}

void kavoJsonLinesReader::addRow(const QJsonObject &object, int line)
{
    if (!object.value(QLatin1String("values")).isObject())
        throw kavoTaskError(tr("no values"));
    kavoTable::Row row { line, idOf(object), textOf(object.value(QLatin1String("path"))), {} };
    const QJsonObject values = object.value(QLatin1String("values")).toObject();
    for (auto member = values.begin(); member != values.end(); ++member) {
        const std::string key = kavoUtf8::unescaped(member.key().toStdString());
        const QJsonValue value = member.value();
        const QJsonArray list = value.isArray() ? value.toArray() : QJsonArray { value };
        for (int i = 0; i < list.size(); ++i)
            row.cells.push_back({ columnOf(key, i), textOf(list[i]) });
    }
    m_table.rows.push_back(std::move(row));
}

std::size_t kavoJsonLinesReader::columnOf(const std::string &key, int occurrence)
{
    const auto [place, isNew] = m_columns.try_emplace({ key, occurrence }, m_table.columns.size());
    if (isNew)
        m_table.columns.push_back(place->first);
    return place->second;
}
