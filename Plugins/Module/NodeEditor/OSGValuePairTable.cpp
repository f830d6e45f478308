#include "OSGValuePairTable.h"

#include <algorithm>
#include <cstring>
#include <tuple>

OSG_BEGIN_NAMESPACE

namespace {

constexpr std::size_t blockSize = 1 << 20;

// A newline takes the byte after it along, be it a comma, half a letter or another newline, and
// leaves a blank: readers of these files count on it.
void appendWithoutNewlines(std::string &text, const std::string &value)
{
    std::size_t begin = 0;
    for (std::size_t end; (end = value.find('\n', begin)) != std::string::npos; begin = end + 2) {
        text.append(value, begin, end - begin);
        text += ' ';
        if (end + 1 == value.size())
            return;
    }
    text.append(value, begin, std::string::npos);
}

bool hasNul(const std::string &key)
{
    return std::memchr(key.data(), 0, key.size());
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
    m_groupsOfNode.clear();
    for (const std::string &key : keys.getValues())
        m_groupsOfNode.push_back(&groupOf(key));
    if (m_ranksAreStale)
        updateRanks();
    ++m_node;
    m_cells.clear();
    for (UInt32 i = 0; i < m_groupsOfNode.size(); ++i) {
        for (UInt32 id : *m_groupsOfNode[i]) {
            Column &column = m_columns[id];
            column.occurrences = column.node == m_node ? column.occurrences + 1 : 0;
            column.node = m_node;
            m_cells.push_back({ column.occurrences, column.rank, id, i });
        }
    }
    std::sort(m_cells.begin(), m_cells.end());
}

ValuePairTable::Group &ValuePairTable::groupOf(const std::string &key)
{
    Group &group = m_groups[hasNul(key) ? std::string(key.c_str()) : key];
    const auto isKey = [&](UInt32 id) { return *m_columns[id].key == key; };
    if (std::none_of(group.begin(), group.end(), isKey))
        addColumn(key, group);
    return group;
}

void ValuePairTable::addColumn(const std::string &key, Group &group)
{
    const UInt32 id = UInt32(m_columns.size());
    const auto place = m_columnsByKey.emplace(key, id).first;
    m_columns.push_back({ &place->first, 0, 0, 0 });
    group.push_back(id);
    m_ranksAreStale = true;
}

// Costs one step a column, and only at a node that brings a new key: over all nodes never more
// than write() needs for the rows of these nodes.
void ValuePairTable::updateRanks()
{
    UInt32 rank = 0;
    for (const auto &[key, id] : m_columnsByKey)
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
    std::string &block = m_blocks.back();
    const std::size_t begin = block.size();
    block.append(sizeof(CellHeader), '\0');
    appendWithoutNewlines(block, value);
    const CellHeader header { column, UInt32(block.size() - begin - sizeof(CellHeader)) };
    std::memcpy(&block[begin], &header, sizeof header);
}

void ValuePairTable::write(std::ostream &out, UInt32 rowCount) const
{
    std::string text;
    text.reserve(blockSize + blockSize / 16);
    writeHeader(text);
    const char *name = m_names.data();
    for (UInt32 row = 0; row < rowCount; ++row) {
        if (name != m_names.data() + m_names.size())
            name = writeName(text, name);
        text += ',';
        writeCells(text, row);
        text += '\n';
        if (text.size() >= blockSize) {
            out.write(text.data(), std::streamsize(text.size()));
            text.clear();
        }
    }
    out.write(text.data(), std::streamsize(text.size()));
}

const char *ValuePairTable::writeName(std::string &text, const char *name)
{
    const std::size_t size = std::strlen(name);
    text.append(name, size);
    return name + size + 1;
}

void ValuePairTable::writeHeader(std::string &text) const
{
    text += "nodes\\keys,";
    for (const auto &[key, id] : m_columnsByKey) {
        text += key;
        text += ',';
    }
    text += '\n';
}

void ValuePairTable::writeCells(std::string &text, UInt32 row) const
{
    UInt32 commas = 0;
    const auto [place, end] = cellsOf(row);
    for (const char *cell = place; cell != end;) {
        CellHeader header;
        std::memcpy(&header, cell, sizeof header);
        const UInt32 rank = m_columns[header.column].rank;
        text.append(rank - commas, ',');
        text.append(cell + sizeof header, header.size);
        commas = rank;
        cell += sizeof header + header.size;
    }
    text.append(m_columns.size() - commas, ',');
}

std::pair<const char *, const char *> ValuePairTable::cellsOf(UInt32 row) const
{
    if (row >= m_rows.size())
        return {};
    const Position begin = m_rows[row];
    const std::string &block = m_blocks[begin.block];
    const bool endsBlock = row + 1 == m_rows.size() || m_rows[row + 1].block != begin.block;
    const std::size_t end = endsBlock ? block.size() : m_rows[row + 1].offset;
    return { block.data() + begin.offset, block.data() + end };
}

OSG_END_NAMESPACE
