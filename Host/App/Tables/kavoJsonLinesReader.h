#pragma once

#include "Tables/kavoTable.h"

#include <QCoreApplication>

#include <map>
#include <string>

class QJsonObject;

/// Reads what kavoJsonLinesWriter writes. Of the members only id, path and values count.
class kavoJsonLinesReader
{
    Q_DECLARE_TR_FUNCTIONS(kavoJsonLinesReader)

public:
    /// \throws kavoTaskError if the text is malformed
    static kavoTable read(const std::string &text);

private:
    void addRow(const QJsonObject &object, int line);
    std::size_t columnOf(const std::string &key, int occurrence);

    kavoTable m_table;
    std::map<kavoTable::Column, std::size_t> m_columns;
};
