#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string>
#include <vector>

/// Writes the rows of a table of value pairs, one for each node.
class kavoRowWriter
{
public:
    struct Node
    {
        osg::UInt32 id;
        std::string path;
        std::string name;
        std::string type; ///< of its core
    };
    /// The value of each column, or null if the node does not have the key.
    using Values = std::vector<const std::string *>;

    virtual ~kavoRowWriter() = default;

    /// Must be called once, before all rows.
    /// \param keys the key of each column; equal keys are adjacent
    virtual void writeHeader(const std::vector<std::string> &keys) = 0;
    virtual void writeRow(const Node &node, const Values &values) = 0;
};
