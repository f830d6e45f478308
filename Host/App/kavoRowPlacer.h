#pragma once

#include "kavoTable.h"

#include <OpenSG/OSGNode.h>

#include <unordered_map>
#include <vector>

/// Finds the nodes that the rows of a table speak about.
///
/// Ids hold only as long as a scene is open, and paths change when siblings do. So a row belongs to
/// the node of its id if that has its path but for the numbers of siblings, else to the node that
/// has exactly its path.
class kavoRowPlacer
{
public:
    kavoRowPlacer(const std::vector<kavoTable::Row> &rows, const osg::NodePtr &root);

    /// The node of each row, null for rows that have none.
    const std::vector<osg::NodePtr> &nodes() const { return m_nodes; }

private:
    void walk(const osg::NodePtr &root);

    const std::vector<kavoTable::Row> &m_rows;
    std::unordered_multimap<osg::UInt32, std::size_t> m_rowsById;
    std::unordered_multimap<std::string, std::size_t> m_rowsByPath;
    std::vector<osg::NodePtr> m_nodes; ///< of the same path, then replaced by those of the same id
    std::vector<osg::NodePtr> m_nodesById;
};
