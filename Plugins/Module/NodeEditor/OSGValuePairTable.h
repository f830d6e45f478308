#pragma once

#include <OpenSG/OSGMFBaseTypes.h>

#include <deque>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

OSG_BEGIN_NAMESPACE

/// The table that a ValuePairCSVCreator gathers. It has a row for each node and a column for each
/// key. Only cells that were set take memory.
class ValuePairTable
{
public:
    ValuePairTable() = default;
    ValuePairTable(const ValuePairTable &) = delete;
    ValuePairTable &operator=(const ValuePairTable &) = delete;

    void addName(const char *name);

    /// Cuts all columns at `row`. Then appends each value to every column whose key equals the
    /// value's key up to the first NUL. A new key makes a new column. A missing value is empty. If
    /// a key is repeated, its second value goes into the row after `row`, and so on.
    /// \param keys not empty
    void setPairs(UInt32 row, const MFString &keys, const MFString &values);

    /// Makes all columns at least `length` long. Without columns the table stays empty.
    /// \returns the length of the columns
    UInt32 extend(UInt32 length);

    /// Writes a header line and the first `rowCount` rows.
    void write(std::ostream &out, UInt32 rowCount) const;

private:
    struct Column
    {
        const std::string *key = nullptr;
        std::vector<Column *> alike; ///< all columns whose keys equal this one up to the first NUL
        UInt32 rank = 0; ///< the number of columns to the left
        UInt32 length = 0; ///< the row after the last cell, 0 if that cell was cut
    };
    /// A value of the current node.
    struct Value
    {
        UInt32 row;
        Column *column;
        const std::string *text;

        bool operator<(const Value &other) const;
    };
    struct Cell
    {
        Column *column;
        UInt32 row;
        UInt32 textSize;
    };
    class Writer;

    void cut(UInt32 row);
    Column *columnOf(const std::string &key);
    void addColumn(const std::string &key, Column &column);
    void placeValue(UInt32 row, Column *column, const std::string &text);
    void addCell(const Value &value, const std::string &text);

    std::unordered_map<std::string, Column> m_columns; ///< by key
    std::vector<Column *> m_order; ///< the columns from left to right
    UInt32 m_length = 0;

    std::string m_names; ///< each ends in NUL
    std::deque<Cell> m_cells; ///< row by row, each from left to right
    std::string m_text; ///< of all cells in the same order

    std::vector<Column *> m_columnsOfKeys; ///< of the current node
    std::vector<Value> m_values; ///< of the current node
};

OSG_END_NAMESPACE
