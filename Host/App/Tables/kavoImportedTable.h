#pragma once

#include "Tables/kavoCellText.h"

#include <OpenSG/OSGBaseTypes.h>

#include <string>
#include <utility>
#include <vector>

/// A table of value pairs as it was read from a file.
struct kavoImportedTable
{
    /// A key, and which of several of that key in a node, counted from 0.
    using Column = std::pair<std::string, int>;

    struct Cell
    {
        std::size_t column; ///< index in columns
        std::string text; ///< as it stands in the file, to be decoded
    };

    struct Row
    {
        int line; ///< in the file, counted from 1
        osg::UInt32 id;
        std::string path;
        std::vector<Cell> cells; ///< at most one for each column
    };

    std::vector<Column> columns; ///< each once, those of a key in the order of occurrence
    /// Whether a row says of a column for which it has no cell that the value is empty. Else it
    /// says nothing of it.
    bool missingCellsAreEmpty = false;
    kavoCellText cellText;
    std::vector<Row> rows;
};
