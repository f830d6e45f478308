#include "Tables/kavoJsonLines.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoUtf8.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <map>
#include <utility>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kavoJsonLines)
};

class Writer : public kavoRowWriter
{
public:
    explicit Writer(std::ostream &out)
        : m_out(out)
    {
    }

    void writeHeader(const std::vector<std::string> &keys) override;
    void writeRow(const Node &node, const Values &values) override;

private:
    std::ostream &m_out;
    std::vector<QString> m_keys; ///< escaped
};

void addValue(QJsonObject &values, const QString &key, const QString &value)
{
    const QJsonValue present = values.value(key);
    if (present.isUndefined()) {
        values.insert(key, value);
        return;
    }
    QJsonArray list = present.isArray() ? present.toArray() : QJsonArray { present };
    list.append(value);
    values.insert(key, list);
}

void Writer::writeHeader(const std::vector<std::string> &keys)
{
    for (const std::string &key : keys)
        m_keys.push_back(kavoUtf8::toString(kavoUtf8::escaped(key)));
}

void Writer::writeRow(const Node &node, const Values &values)
{
    QJsonObject object;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i])
            addValue(object, m_keys[i], kavoUtf8::toString(*values[i]));
    }
    const QJsonObject row { { QStringLiteral("id"), qint64(node.id) },
        { QStringLiteral("path"), kavoUtf8::toString(node.path) },
        { QStringLiteral("name"), kavoUtf8::toString(node.name) },
        { QStringLiteral("type"), kavoUtf8::toString(node.type) },
        { QStringLiteral("values"), object } };
    const QByteArray line = QJsonDocument(row).toJson(QJsonDocument::Compact) + '\n';
    m_out.write(line.constData(), line.size());
}

std::string textOf(const QJsonValue &value)
{
    if (!value.isString())
        throw kavoTaskError(Text::tr("a value that is no text"));
    return value.toString().toStdString();
}

osg::UInt32 idOf(const QJsonObject &object)
{
    const double id = object.value(QLatin1String("id")).toDouble(-1);
    if (id < 0 || id > std::numeric_limits<osg::UInt32>::max() || id != double(osg::UInt32(id)))
        throw kavoTaskError(Text::tr("no id"));
    return osg::UInt32(id);
}

// The parser drops a byte order mark at the start of a string unless it is escaped.
QJsonObject objectOf(QByteArray line)
{
    QJsonParseError error;
    const QJsonDocument document
        = QJsonDocument::fromJson(line.replace(kavoUtf8::byteOrderMark, "\\ufeff"), &error);
    if (error.error != QJsonParseError::NoError)
        throw kavoTaskError(error.errorString());
    return document.object();
}

class Reader
{
public:
    void addRow(const QJsonObject &object, int line);
    kavoImportedTable takeTable() { return std::move(m_table); }

private:
    std::size_t columnOf(const std::string &key, int occurrence);

    kavoImportedTable m_table;
    std::map<kavoImportedTable::Column, std::size_t> m_columns;
};

void Reader::addRow(const QJsonObject &object, int line)
{
    if (!object.value(QLatin1String("values")).isObject())
        throw kavoTaskError(Text::tr("no values"));
    kavoImportedTable::Row row { line, idOf(object), textOf(object.value(QLatin1String("path"))),
        {} };
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

std::size_t Reader::columnOf(const std::string &key, int occurrence)
{
    const auto [place, isNew] = m_columns.try_emplace({ key, occurrence }, m_table.columns.size());
    if (isNew)
        m_table.columns.push_back(place->first);
    return place->second;
}

} // namespace

std::unique_ptr<kavoRowWriter> kavoJsonLines::createWriter(std::ostream &out)
{
    return std::make_unique<Writer>(out);
}

kavoImportedTable kavoJsonLines::read(const std::string &text)
{
    Reader reader;
    int number = 0;
    for (const QByteArray &line : QByteArray::fromStdString(text).split('\n')) {
        ++number;
        if (line.trimmed().isEmpty())
            continue;
        try {
            reader.addRow(objectOf(line), number);
        } catch (const kavoTaskError &error) {
            throw kavoTaskError(Text::tr("line %1: %2").arg(number).arg(error.message()));
        }
    }
    return reader.takeTable();
}
