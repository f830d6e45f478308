#pragma once

#include "Tables/kavoTableOptions.h"

#include <OpenSG/OSGBaseTypes.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// Writes a table of value pairs in some format.
class kavoTableWriter
{
public:
    /// What a row says of its node besides the values.
    struct Node
    {
        osg::UInt32 id;
        std::string path;
        std::string name;
        std::string type; ///< of its core
    };
    /// For each column a value, or null where the node does not have the key.
    using Cells = std::vector<const std::string *>;

    static std::unique_ptr<kavoTableWriter> create(
        std::ostream &out, const kavoTableOptions &options);
    virtual ~kavoTableWriter() = default;

    /// To be called once, before all rows. Equal keys stand side by side.
    virtual void writeHeader(const std::vector<std::string> &keys) = 0;
    virtual void writeRow(const Node &node, const Cells &cells) = 0;
};
