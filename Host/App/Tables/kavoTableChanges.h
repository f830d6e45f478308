#pragma once

#include "Tables/kavoTable.h"

#include <OpenSG/OSGNode.h>

#include <map>
#include <vector>

/// Collects the values that a table would change, and then changes them.
class kavoTableChanges
{
public:
    /// \param table must outlive this object
    explicit kavoTableChanges(const kavoTable &table);

    /// Compares a row with the values of its node. Each node may have one row only.
    void compare(const kavoTable::Row &row, const osg::NodePtr &node);

    int valueCount() const { return int(m_changes.size()); }
    int nodeCount() const { return m_nodeCount; }

    /// Changes the values in the scene.
    void write() const;

private:
    struct Change
    {
        osg::NodePtr node;
        int pair; ///< index, or none for a new pair
        std::size_t column;
        std::string value;
    };
    static constexpr int none = -1;

    std::map<std::size_t, int> pairsByColumn(const osg::NodePtr &node) const;
    void compareCell(
        const osg::NodePtr &node, int pair, std::size_t column, const std::string &cell);

    const kavoTable &m_table;
    std::map<kavoTable::Column, std::size_t> m_columns;
    std::vector<Change> m_changes;
    int m_nodeCount = 0;
};
