#pragma once

#include "kavoCellText.h"

#include <OpenSG/OSGBaseTypes.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// A table of value pairs as it was read from a file.
struct kavoTable
{
    /// A key, and which of several of that key in a node, counted from 0.
    using Column = std::pair<std::string, int>;

    struct Row
    {
        int line; ///< in the file, counted from 1
        osg::UInt32 id;
        std::string path;
        std::map<Column, std::string> cells; ///< as they stand in the file, to be decoded
    };

    /// Columns whose values are empty in rows that have no cell for them. Of all others a row tells
    /// nothing if it has no cell.
    std::vector<Column> columns;
    kavoCellText cellText;
    std::vector<Row> rows;
};
