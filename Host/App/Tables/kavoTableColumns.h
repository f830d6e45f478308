#pragma once

#include "Tables/kavoPatterns.h"

#include <OSGValuePairBase.h>

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

/// The columns of a table of value pairs: one for each key, and where some node has a key several
/// times, that many. They are in the byte order of their keys.
class kavoTableColumns
{
public:
    /// \param keys the keys that get columns
    explicit kavoTableColumns(const kavoPatterns &keys);

    /// Adds what these pairs need. Before layOut().
    void add(const osg::ValuePairBase &pairs);
    void layOut();

    /// The key of each column. After layOut(), as all below.
    const std::vector<std::string> &keys() const { return m_keys; }
    /// Distributes the values of a node. \param cells a value or null for each column
    void fill(const osg::ValuePairBase &pairs, std::vector<const std::string *> &cells) const;

private:
    struct Key
    {
        bool isWanted;
        int columns;
        std::size_t firstColumn;
    };

    kavoPatterns m_patterns;
    std::unordered_map<std::string, Key> m_index;
    std::vector<std::string> m_keys;
};
