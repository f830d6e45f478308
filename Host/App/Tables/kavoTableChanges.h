#pragma once

#include "Tables/kavoTable.h"

#include <OpenSG/OSGNode.h>

#include <unordered_map>
#include <utility>
#include <vector>

/// Finds out which values a table would change, and then changes them.
class kavoTableChanges
{
public:
    /// \param table must live as long as this object
    explicit kavoTableChanges(const kavoTable &table);

    /// Compares a row with the values of its node. No two rows may be of one node.
    void compare(const kavoTable::Row &row, const osg::NodePtr &node);

    int valueCount() const { return int(m_changes.size()); }
    int nodeCount() const { return m_nodeCount; }

    /// Writes what differs.
    void write() const;

private:
    struct Change
    {
        osg::NodePtr node;
        int pair; ///< none: one is to be added
        std::size_t column;
        std::string value;
    };
    struct Key
    {
        std::vector<std::size_t> columns; ///< by occurrence
        std::size_t occurrences = 0; ///< in the node that is compared
    };
    static constexpr int none = -1;

    void findPairs(const osg::NodePtr &node);
    void compareCell(const osg::NodePtr &node, std::size_t column, const std::string &cell);
    void forgetPairs();

    const kavoTable &m_table;
    std::unordered_map<std::string, Key> m_keys;
    std::vector<int> m_pairs; ///< of the node that is compared, by column
    std::vector<std::pair<Key *, std::size_t>> m_found; ///< columns of these pairs
    std::vector<Change> m_changes;
    int m_nodeCount = 0;
};
