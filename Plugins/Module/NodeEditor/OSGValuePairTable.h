#pragma once

#include <OpenSG/OSGMFBaseTypes.h>

#include <array>
#include <map>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

OSG_BEGIN_NAMESPACE

class TextBuffer;

/// The table that a ValuePairCSVCreator gathers: a column for every key, all of one length, and
/// beside them the names of the rows.
///
/// Only cells that were set take memory. They are kept in the order and in the form in which they
/// are written.
class ValuePairTable
{
public:
    ValuePairTable() = default;
    ValuePairTable(const ValuePairTable &) = delete;
    ValuePairTable &operator=(const ValuePairTable &) = delete;

    void addName(const char *name);

    /// Cuts every column at the row, then appends to each the values that belong to its key: one
    /// cell, or more that reach into the following rows where a key is repeated. New keys make new
    /// columns. Values that are missing are empty.
    void setPairs(UInt32 row, const MFString &keys, const MFString &values);

    /// Makes the columns, if there are any, at least that long. \returns their length
    UInt32 extend(UInt32 length);

    /// A header and that many rows.
    void write(std::ostream &out, UInt32 rowCount) const;

private:
    struct Column
    {
        const std::string *key;
        UInt32 rank; ///< place among the columns in key order
        UInt32 alike; ///< next of the ring of columns whose keys are the same up to their first NUL
        UInt32 node; ///< the setPairs() that met it last
        UInt32 occurrences; ///< how often in that one
    };
    /// A value to be put into the row that follows the first by `occurrence`.
    struct Cell
    {
        UInt32 occurrence;
        UInt32 rank;
        UInt32 column;
        UInt32 value;

        bool operator<(const Cell &other) const;
    };
    struct PackedRow
    {
        const char *begin, *end, *blockEnd;
    };
    struct Position
    {
        UInt32 block;
        UInt32 offset;
    };
    using Place = std::map<std::string, UInt32>::const_iterator;

    UInt32 columnOf(const std::string &key);
    UInt32 addColumn(const std::string &key);
    void joinRing(Place place);
    void updateRanks();
    void collectCells(const MFString &keys);
    void addCell(UInt32 id, UInt32 value);
    void cut(UInt32 row);
    void beginRow();
    void appendCell(UInt32 column, const std::string &value);
    void writeHeader(std::ostream &out) const;
    void writeCells(TextBuffer &text, UInt32 row) const;
    PackedRow cellsOf(UInt32 row) const;

    std::string m_names; ///< each ends in NUL
    std::map<std::string, UInt32> m_columnsInOrder; ///< by key
    std::unordered_map<std::string, UInt32> m_columnsByKey; ///< the same, found faster
    std::array<UInt32, 1024> m_recentColumns {}; ///< by a cheap hash of the key
    std::vector<Column> m_columns;
    bool m_ranksAreStale = false;

    std::vector<std::string> m_blocks; ///< each cell as column, size and text; whole rows in each
    std::vector<Position> m_rows; ///< the rows up to the last that has cells
    UInt32 m_length = 0;

    std::vector<UInt32> m_columnsOfNode;
    std::vector<Cell> m_cells;
    UInt32 m_node = 0;
};

OSG_END_NAMESPACE
