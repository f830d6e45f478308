#pragma once

#include "Tables/kavoCellText.h"

#include <OpenSG/OSGBaseTypes.h>

#include <string>
#include <utility>
#include <vector>

/// A table of value pairs as it was read from a file.
struct kavoImportedTable
{
    /// A key and its occurrence in a node, counted from 0.
    using Column = std::pair<std::string, int>;

    struct Cell
    {
        std::size_t column; ///< index in columns
        std::string text; ///< as in the file, not decoded
    };

    struct Row
    {
        int line; ///< counted from 1
        osg::UInt32 id;
        std::string path;
        std::vector<Cell> cells; ///< at most one for each column
    };

    std::vector<Column> columns; ///< unique; the columns of a key in ascending order of occurrence
    /// If true, a missing cell clears the value; if false, it leaves the value alone.
    bool missingCellsAreEmpty = false;
    kavoCellText cellText;
    std::vector<Row> rows;
};
