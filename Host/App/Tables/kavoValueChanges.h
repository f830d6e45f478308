#pragma once

#include "Tables/kavoImportedTable.h"

#include <OpenSG/OSGNode.h>

#include <map>
#include <vector>

/// Collects the values that a table would change, and then changes them.
class kavoValueChanges
{
public:
    /// \param table must outlive this object
    explicit kavoValueChanges(const kavoImportedTable &table);

    /// Compares a row with the values of its node. Each node may have one row only.
    void compare(const kavoImportedTable::Row &row, const osg::NodePtr &node);

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

    const kavoImportedTable &m_table;
    std::map<kavoImportedTable::Column, std::size_t> m_columns;
    std::vector<Change> m_changes;
    int m_nodeCount = 0;
};
