#include "OSGValuePairTable.h"

#include "OSGTextBuffer.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <tuple>

OSG_BEGIN_NAMESPACE

namespace {

constexpr std::size_t blockSize = 1 << 20;

// Seven bits a byte, the last byte below 128: most numbers are small.
void appendNumber(std::string &text, UInt32 number)
{
    for (; number >= 128; number >>= 7)
        text += char(number | 128);
    text += char(number);
}

UInt32 readNumber(const char *&place)
{
    UInt32 number = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*place++);
        number |= UInt32(byte & 127) << shift;
        if (byte < 128)
            return number;
    }
}

// Any function of the key serves. This one tells keys apart that end in numbers.
std::size_t slotOf(const std::string &key, std::size_t slotCount)
{
    std::size_t slot = key.size();
    for (std::size_t i = key.size() - std::min<std::size_t>(key.size(), 3); i < key.size(); ++i)
        slot = slot * 11 + static_cast<unsigned char>(key[i]);
    return slot % slotCount;
}

// A newline takes the byte after it along, be it a comma, part of a character or another newline,
// and leaves a blank: readers of these files count on it.
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

}

bool ValuePairTable::Cell::operator<(const Cell &other) const
{
    return std::tie(occurrence, rank) < std::tie(other.occurrence, other.rank);
}

void ValuePairTable::addName(const char *name)
{
    m_names.append(name, std::strlen(name) + 1);
}

void ValuePairTable::setPairs(UInt32 row, const MFString &keys, const MFString &values)
{
    collectCells(keys);
    cut(row);
    static const std::string missing;
    for (const Cell &cell : m_cells) {
        while (m_rows.size() <= row + cell.occurrence)
            beginRow();
        appendCell(
            cell.column, cell.value < values.size() ? values.getValues()[cell.value] : missing);
    }
    m_length = UInt32(m_rows.size());
}

UInt32 ValuePairTable::extend(UInt32 length)
{
    if (!m_columns.empty())
        m_length = std::max(m_length, length);
    return m_length;
}

// Every column of a key gets its values, also one whose key goes on behind a NUL.
void ValuePairTable::collectCells(const MFString &keys)
{
    m_columnsOfNode.clear();
    for (const std::string &key : keys.getValues())
        m_columnsOfNode.push_back(columnOf(key));
    if (m_ranksAreStale)
        updateRanks();
    ++m_node;
    m_cells.clear();
    for (UInt32 i = 0; i < m_columnsOfNode.size(); ++i) {
        UInt32 id = m_columnsOfNode[i];
        do {
            addCell(id, i);
            id = m_columns[id].alike;
        } while (id != m_columnsOfNode[i]);
    }
    std::sort(m_cells.begin(), m_cells.end());
}

void ValuePairTable::addCell(UInt32 id, UInt32 value)
{
    Column &column = m_columns[id];
    column.occurrences = column.node == m_node ? column.occurrences + 1 : 0;
    column.node = m_node;
    m_cells.push_back({ column.occurrences, column.rank, id, value });
}

UInt32 ValuePairTable::columnOf(const std::string &key)
{
    UInt32 &recent = m_recentColumns[slotOf(key, m_recentColumns.size())];
    if (recent < m_columns.size() && *m_columns[recent].key == key)
        return recent;
    const auto place = m_columnsByKey.find(key);
    recent = place == m_columnsByKey.end() ? addColumn(key) : place->second;
    return recent;
}

UInt32 ValuePairTable::addColumn(const std::string &key)
{
    const UInt32 id = UInt32(m_columns.size());
    const Place place = m_columnsInOrder.emplace(key, id).first;
    m_columns.push_back({ &place->first, 0, id, 0, 0 });
    m_columnsByKey.emplace(key, id);
    joinRing(place);
    m_ranksAreStale = true;
    return id;
}

// Keys that are the same up to a NUL stand side by side.
void ValuePairTable::joinRing(Place place)
{
    const auto isAlike = [place](Place other) {
        return std::strcmp(other->first.c_str(), place->first.c_str()) == 0;
    };
    const Place next = std::next(place);
    Place alike = place;
    if (next != m_columnsInOrder.end() && isAlike(next))
        alike = next;
    else if (place != m_columnsInOrder.begin() && isAlike(std::prev(place)))
        alike = std::prev(place);
    std::swap(m_columns[place->second].alike, m_columns[alike->second].alike);
}

// Costs one step a column, and only at a node that brings a new key: over all nodes never more
// than write() needs for the rows of these nodes.
void ValuePairTable::updateRanks()
{
    UInt32 rank = 0;
    for (const auto &[key, id] : m_columnsInOrder)
        m_columns[id].rank = rank++;
    m_ranksAreStale = false;
}

void ValuePairTable::cut(UInt32 row)
{
    if (row >= m_rows.size())
        return;
    const Position end = m_rows[row];
    m_rows.resize(row);
    m_blocks.resize(end.block + 1);
    m_blocks.back().resize(end.offset);
}

// Blocks of their own, as one string would move all its text each time it grows.
void ValuePairTable::beginRow()
{
    if (m_blocks.empty() || m_blocks.back().size() >= blockSize) {
        m_blocks.emplace_back();
        m_blocks.back().reserve(blockSize + blockSize / 16);
    }
    m_rows.push_back({ UInt32(m_blocks.size() - 1), UInt32(m_blocks.back().size()) });
}

void ValuePairTable::appendCell(UInt32 column, const std::string &value)
{
    if (std::memchr(value.data(), '\n', value.size()))
        return appendCell(column, withoutNewlines(value));
    appendNumber(m_blocks.back(), column);
    appendNumber(m_blocks.back(), UInt32(value.size()));
    m_blocks.back().append(value);
}

void ValuePairTable::write(std::ostream &out, UInt32 rowCount) const
{
    writeHeader(out);
    TextBuffer text(out);
    const char *name = m_names.data();
    const char *const namesEnd = name + m_names.size();
    for (UInt32 row = 0; row < rowCount; ++row) {
        const std::size_t nameSize = name == namesEnd ? 0 : std::strlen(name);
        text.reserve(nameSize + 2);
        text.append(name, nameSize);
        text.append(',');
        writeCells(text, row);
        text.append('\n');
        name += name == namesEnd ? 0 : nameSize + 1;
    }
    text.flush();
}

void ValuePairTable::writeHeader(std::ostream &out) const
{
    out << "nodes\\keys,";
    for (const auto &[key, id] : m_columnsInOrder)
        out << key << ',';
    out << '\n';
}

void ValuePairTable::writeCells(TextBuffer &text, UInt32 row) const
{
    const auto [begin, end, blockEnd] = cellsOf(row);
    text.reserve(std::size_t(end - begin) + m_columns.size() + 1);
    UInt32 commas = 0;
    for (const char *place = begin; place != end;) {
        const UInt32 rank = m_columns[readNumber(place)].rank;
        const UInt32 size = readNumber(place);
        text.append(rank - commas, ',');
        text.append(place, size, blockEnd);
        commas = rank;
        place += size;
    }
    text.append(m_columns.size() - commas, ',');
}

ValuePairTable::PackedRow ValuePairTable::cellsOf(UInt32 row) const
{
    if (row >= m_rows.size())
        return {};
    const Position begin = m_rows[row];
    const std::string &block = m_blocks[begin.block];
    const bool endsBlock = row + 1 == m_rows.size() || m_rows[row + 1].block != begin.block;
    const std::size_t end = endsBlock ? block.size() : m_rows[row + 1].offset;
    return { block.data() + begin.offset, block.data() + end, block.data() + block.size() };
}

OSG_END_NAMESPACE
