#pragma once

#include "Tables/kavoTableWriter.h"

#include <QString>

/// Writes JSON Lines, an object for each row: the members id, path, name, type and values, which is
/// an object with a text for each key, or a list of texts where the node has the key repeatedly.
class kavoJsonLinesWriter : public kavoTableWriter
{
public:
    explicit kavoJsonLinesWriter(std::ostream &out);

    void writeHeader(const std::vector<std::string> &keys) override;
    void writeRow(const Node &node, const Cells &cells) override;

private:
    std::ostream &m_out;
    std::vector<QString> m_keys; ///< as they are written
};
