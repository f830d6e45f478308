#include "Tables/kavoCsvWriter.h"

kavoCsvWriter::kavoCsvWriter(std::ostream &out, const kavoTableOptions &options)
    : m_out(out)
    , m_cellText(options.decimalSeparator, options.guardsFormulas)
    , m_delimiter(options.delimiter)
    , m_startsWithByteOrderMark(options.startsWithByteOrderMark)
{
}

const std::vector<std::string> &kavoCsvWriter::fixedColumns()
{
    static const std::vector<std::string> columns { "id", "path", "name", "type" };
    return columns;
}

void kavoCsvWriter::writeHeader(const std::vector<std::string> &keys)
{
    if (m_startsWithByteOrderMark)
        m_out << "\xEF\xBB\xBF";
    for (const std::string &column : fixedColumns())
        append(column);
    for (const std::string &key : keys)
        appendCell(m_cellText.encodeKey(key));
    endLine();
}

void kavoCsvWriter::writeRow(const Node &node, const Cells &cells)
{
    append(std::to_string(node.id));
    append(node.path);
    append(node.name);
    append(node.type);
    static const std::string empty;
    for (const std::string *cell : cells)
        append(cell ? *cell : empty);
    endLine();
}

void kavoCsvWriter::append(const std::string &text)
{
    appendCell(m_cellText.encode(text));
}

void kavoCsvWriter::appendCell(const std::string &cell)
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

// Text is split at no other delimiter either: what a spreadsheet takes for a cell of its own might
// be a formula.
bool kavoCsvWriter::needsQuotes(const std::string &cell) const
{
    if (cell.find_first_of("\"\r\n") != std::string::npos
        || cell.find(m_delimiter) != std::string::npos)
        return true;
    return cell.find_first_of(",;\t") != std::string::npos && !m_cellText.isNumber(cell);
}

void kavoCsvWriter::endLine()
{
    m_line.pop_back();
    m_line += "\r\n";
    m_out.write(m_line.data(), std::streamsize(m_line.size()));
    m_line.clear();
}
