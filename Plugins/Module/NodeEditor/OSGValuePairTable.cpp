#include "OSGValuePairTable.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <tuple>

OSG_BEGIN_NAMESPACE

namespace {

// Deliberate: a newline swallows the byte after it, be it a comma, part of a character or another
// newline. Programs that read these files expect it.
std::string withoutNewlines(const std::string &value)
{
    std::string text;
    std::size_t begin = 0;
    for (std::size_t end; (end = value.find('\n', begin)) != std::string::npos; begin = end + 2) {
        text.append(value, begin, end - begin);
        text += ' ';
        if (end + 1 == value.size())
            return text;
    }
    return text.append(value, begin, std::string::npos);
}

bool isAlike(const std::string &a, const std::string &b)
{
    return std::strcmp(a.c_str(), b.c_str()) == 0;
}

} // namespace

/// Writes a table line by line.
class ValuePairTable::Writer
{
public:
    Writer(const ValuePairTable &table, std::ostream &out)
        : m_table(table)
        , m_out(out)
        , m_name(table.m_names.data())
        , m_cell(table.m_cells.begin())
        , m_text(table.m_text.data())
    {
    }

    void writeHeader();
    void writeRow(UInt32 row);
    void flush();

private:
    using CellPlace = std::deque<Cell>::const_iterator;

    std::string_view takeName();
    CellPlace endOfRow(UInt32 row) const;
    void writeCells(CellPlace end, char *to);

    const ValuePairTable &m_table;
    std::ostream &m_out;
    std::string m_buffer;
    const char *m_name;
    CellPlace m_cell;
    const char *m_text;
};

void ValuePairTable::Writer::writeHeader()
{
    m_buffer += "nodes\\keys,";
    for (const Column *column : m_table.m_order)
        m_buffer += *column->key + ',';
    m_buffer += '\n';
}

// Fills the row with commas first, then puts the texts between them.
void ValuePairTable::Writer::writeRow(UInt32 row)
{
    const std::string_view name = takeName();
    const CellPlace end = endOfRow(row);
    std::size_t size = name.size() + 1 + m_table.m_columns.size() + 1;
    for (CellPlace cell = m_cell; cell != end; ++cell)
        size += cell->textSize;
    const std::size_t start = m_buffer.size();
    m_buffer.resize(start + size, ',');
    writeCells(end, std::copy(name.begin(), name.end(), &m_buffer[start]) + 1);
    m_buffer.back() = '\n';
    if (m_buffer.size() > (1 << 16))
        flush();
}

std::string_view ValuePairTable::Writer::takeName()
{
    if (m_name == m_table.m_names.data() + m_table.m_names.size())
        return {};
    const std::string_view name = m_name;
    m_name += name.size() + 1;
    return name;
}

ValuePairTable::Writer::CellPlace ValuePairTable::Writer::endOfRow(UInt32 row) const
{
    CellPlace end = m_cell;
    while (end != m_table.m_cells.end() && end->row == row)
        ++end;
    return end;
}

void ValuePairTable::Writer::writeCells(CellPlace end, char *to)
{
    UInt32 rank = 0;
    for (; m_cell != end; ++m_cell) {
        to = std::copy_n(m_text, m_cell->textSize, to + (m_cell->column->rank - rank));
        m_text += m_cell->textSize;
        rank = m_cell->column->rank;
    }
}

void ValuePairTable::Writer::flush()
{
    m_out.write(m_buffer.data(), std::streamsize(m_buffer.size()));
    m_buffer.clear();
}

bool ValuePairTable::Value::operator<(const Value &other) const
{
    return std::tie(row, column->rank) < std::tie(other.row, other.column->rank);
}

void ValuePairTable::addName(const char *name)
{
    m_names.append(name, std::strlen(name) + 1);
}

// All keys get their columns before the first value is placed: a value may belong to a column that
// a later key makes.
void ValuePairTable::setPairs(UInt32 row, const MFString &keys, const MFString &values)
{
    static const std::string missing;
    cut(row);
    m_columnsOfKeys.clear();
    for (const std::string &key : keys.getValues())
        m_columnsOfKeys.push_back(columnOf(key));
    m_values.clear();
    for (UInt32 i = 0; i < keys.size(); ++i) {
        for (Column *column : m_columnsOfKeys[i]->alike)
            placeValue(row, column, i < values.size() ? values.getValues()[i] : missing);
    }
    std::sort(m_values.begin(), m_values.end());
    for (const Value &value : m_values)
        addCell(value, *value.text);
}

UInt32 ValuePairTable::extend(UInt32 length)
{
    if (!m_columns.empty())
        m_length = std::max(m_length, length);
    return m_length;
}

void ValuePairTable::cut(UInt32 row)
{
    for (; !m_cells.empty() && m_cells.back().row >= row; m_cells.pop_back()) {
        m_cells.back().column->length = 0;
        m_text.resize(m_text.size() - m_cells.back().textSize);
    }
}

ValuePairTable::Column *ValuePairTable::columnOf(const std::string &key)
{
    const auto [place, isNew] = m_columns.try_emplace(key);
    if (isNew)
        addColumn(place->first, place->second);
    return &place->second;
}

void ValuePairTable::addColumn(const std::string &key, Column &column)
{
    column.key = &key;
    const auto isLess = [](const Column *a, const std::string &b) { return *a->key < b; };
    auto place = std::lower_bound(m_order.begin(), m_order.end(), key, isLess);
    place = m_order.insert(place, &column);
    for (; place != m_order.end(); ++place)
        (*place)->rank = UInt32(place - m_order.begin());
    place = std::lower_bound(m_order.begin(), m_order.end(), key.c_str(), isLess);
    for (; place != m_order.end() && isAlike(*(*place)->key, key); ++place) {
        (*place)->alike.push_back(&column);
        if (*place != &column)
            column.alike.push_back(*place);
    }
}

void ValuePairTable::placeValue(UInt32 row, Column *column, const std::string &text)
{
    m_values.push_back({ std::max(row, column->length), column, &text });
    column->length = m_values.back().row + 1;
}

void ValuePairTable::addCell(const Value &value, const std::string &text)
{
    if (std::memchr(text.data(), '\n', text.size()))
        return addCell(value, withoutNewlines(text));
    m_text += text;
    m_cells.push_back({ value.column, value.row, UInt32(text.size()) });
    m_length = value.row + 1;
}

void ValuePairTable::write(std::ostream &out, UInt32 rowCount) const
{
    Writer writer(*this, out);
    writer.writeHeader();
    for (UInt32 row = 0; row < rowCount; ++row)
        writer.writeRow(row);
    writer.flush();
}

OSG_END_NAMESPACE
