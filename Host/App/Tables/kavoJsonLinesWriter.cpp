#include "Tables/kavoJsonLinesWriter.h"

#include "Tables/kavoUtf8.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

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

}

kavoJsonLinesWriter::kavoJsonLinesWriter(std::ostream &out)
    : m_out(out)
{
}

void kavoJsonLinesWriter::writeHeader(const std::vector<std::string> &keys)
{
    m_keys.clear();
    for (const std::string &key : keys)
        m_keys.push_back(kavoUtf8::toString(kavoUtf8::escaped(key)));
}

void kavoJsonLinesWriter::writeRow(const Node &node, const Cells &cells)
{
    QJsonObject values;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i])
            addValue(values, m_keys[i], kavoUtf8::toString(*cells[i]));
    }
    const QJsonObject row { { QStringLiteral("id"), qint64(node.id) },
        { QStringLiteral("path"), kavoUtf8::toString(node.path) },
        { QStringLiteral("name"), kavoUtf8::toString(node.name) },
        { QStringLiteral("type"), kavoUtf8::toString(node.type) },
        { QStringLiteral("values"), values } };
    const QByteArray line = QJsonDocument(row).toJson(QJsonDocument::Compact) + '\n';
    m_out.write(line.constData(), line.size());
}
