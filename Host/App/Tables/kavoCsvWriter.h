#pragma once

#include "Tables/kavoCellText.h"
#include "Tables/kavoTableWriter.h"

/// Writes CSV as in RFC 4180: a header, cells quoted where need be, lines that end in CR LF. The
/// first columns are id, path, name and type.
class kavoCsvWriter : public kavoTableWriter
{
public:
    kavoCsvWriter(std::ostream &out, const kavoTableOptions &options);

    void writeHeader(const std::vector<std::string> &keys) override;
    void writeRow(const Node &node, const Cells &cells) override;

    static const std::vector<std::string> &fixedColumns();

private:
    void append(const std::string &text);
    void appendCell(const std::string &cell);
    bool needsQuotes(const std::string &cell) const;
    void endLine();

    std::ostream &m_out;
    kavoCellText m_cellText;
    char m_delimiter;
    bool m_startsWithByteOrderMark;
    std::string m_line;
};
