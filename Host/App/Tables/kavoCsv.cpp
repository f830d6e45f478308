#include "Tables/kavoCsv.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsvParser.h"
#include "Tables/kavoUtf8.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kavoCsv)
};

using Cells = std::vector<std::string>;

const Cells fixedColumns { "id", "path", "name", "type" };

class Writer : public kavoRowWriter
{
public:
    Writer(std::ostream &out, const kavoTableOptions &options)
        : m_out(out)
        , m_cellText(options.decimalSeparator, options.guardsFormulas)
        , m_delimiter(options.delimiter)
        , m_startsWithByteOrderMark(options.startsWithByteOrderMark)
    {
    }

    void writeHeader(const std::vector<std::string> &keys) override;
    void writeRow(const Node &node, const Values &values) override;

private:
    void append(const std::string &text) { appendCell(m_cellText.encode(text)); }
    void appendCell(const std::string &cell);
    bool needsQuotes(const std::string &cell) const;
    void endLine();

    std::ostream &m_out;
    kavoCellText m_cellText;
    char m_delimiter;
    bool m_startsWithByteOrderMark;
    std::string m_line;
};

void Writer::writeHeader(const std::vector<std::string> &keys)
{
    if (m_startsWithByteOrderMark)
        m_out << kavoUtf8::byteOrderMark;
    for (const std::string &column : fixedColumns)
        append(column);
    for (const std::string &key : keys)
        appendCell(m_cellText.encodeKey(key));
    endLine();
}

void Writer::writeRow(const Node &node, const Values &values)
{
    append(std::to_string(node.id));
    append(node.path);
    append(node.name);
    append(node.type);
    for (const std::string *value : values)
        append(value ? *value : std::string());
    endLine();
}

void Writer::appendCell(const std::string &cell)
{
    if (!needsQuotes(cell)) {
        m_line += cell;
    } else {
        m_line += '"';
        for (char character : cell)
            m_line.append(character == '"' ? 2 : 1, character);
        m_line += '"';
    }
    m_line += m_delimiter;
}

// Also quotes text that holds another common delimiter: a spreadsheet that splits there could take
// the second half for a formula.
bool Writer::needsQuotes(const std::string &cell) const
{
    if (cell.find_first_of("\"\r\n") != std::string::npos
        || cell.find(m_delimiter) != std::string::npos)
        return true;
    return cell.find_first_of(",;\t") != std::string::npos && !m_cellText.isNumber(cell);
}

void Writer::endLine()
{
    m_line.pop_back();
    m_line += "\r\n";
    m_out << m_line;
    m_line.clear();
}

[[noreturn]] void fail(int line, const QString &reason)
{
    throw kavoTaskError(Text::tr("line %1: %2").arg(line).arg(reason));
}

// The name of the first column is known. The delimiter follows it, or follows its closing quote.
char findDelimiter(const std::string &text)
{
    for (const std::string_view start : { "id", "\"id\"" }) {
        if (text.size() > start.size() && text.compare(0, start.size(), start) == 0)
            return text[start.size()];
    }
    return ',';
}

std::vector<kavoImportedTable::Column> columnsOf(const Cells &header, const kavoCellText &cellText)
{
    if (header.size() < fixedColumns.size()
        || !std::equal(fixedColumns.begin(), fixedColumns.end(), header.begin()))
        fail(1, Text::tr("the columns id, path, name and type are not the first"));
    std::vector<kavoImportedTable::Column> columns;
    std::unordered_map<std::string, int> count;
    for (std::size_t i = fixedColumns.size(); i < header.size(); ++i) {
        const std::string key = cellText.decodeKey(header[i]);
        columns.emplace_back(key, count[key]++);
    }
    return columns;
}

osg::UInt32 parseId(const std::string &cell, int line)
{
    bool isNumber = false;
    const osg::UInt32 id = QString::fromStdString(cell).toUInt(&isNumber);
    if (!isNumber)
        fail(line, Text::tr("'%1' is not an id").arg(QString::fromStdString(cell)));
    return id;
}

// Leaves out empty cells: they are most of a large table.
kavoImportedTable::Row rowOf(const Cells &cells, int line, const kavoCellText &cellText)
{
    kavoImportedTable::Row row { line, parseId(cells[0], line), cellText.decode(cells[1]), {} };
    for (std::size_t i = fixedColumns.size(); i < cells.size(); ++i) {
        if (!cells[i].empty())
            row.cells.push_back({ i - fixedColumns.size(), cells[i] });
    }
    return row;
}

} // namespace

std::unique_ptr<kavoRowWriter> kavoCsv::createWriter(
    std::ostream &out, const kavoTableOptions &options)
{
    return std::make_unique<Writer>(out, options);
}

kavoImportedTable kavoCsv::read(const std::string &text, const kavoTableOptions &options)
{
    kavoImportedTable table;
    table.missingCellsAreEmpty = true;
    table.cellText = kavoCellText(options.decimalSeparator, options.guardsFormulas);
    kavoCsvParser parser(text, findDelimiter(text));
    Cells cells;
    if (!parser.readRow(cells))
        fail(1, Text::tr("the file is empty"));
    table.columns = columnsOf(cells, table.cellText);
    const std::size_t width = cells.size();
    while (parser.readRow(cells)) {
        if (cells.size() != width)
            fail(parser.line(), Text::tr("%1 cells instead of %2").arg(cells.size()).arg(width));
        table.rows.push_back(rowOf(cells, parser.line(), table.cellText));
    }
    return table;
}
