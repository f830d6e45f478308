#pragma once

#include "Tables/kavoPatterns.h"

#include <OSGValuePairBase.h>

#include <map>
#include <string>
#include <vector>

/// The columns of a table of value pairs, in the byte order of their keys. A key has as many
/// columns as the node that repeats it most has pairs with that key.
class kavoKeyColumns
{
public:
    /// \param keys selects the keys that get columns
    explicit kavoKeyColumns(const kavoPatterns &keys);

    /// Adds the columns that these pairs need. Must not be called after layOut().
    void add(const osg::ValuePairBase &pairs);
    /// Fixes the order of the columns. The functions below need it.
    void layOut();

    /// Returns the key of each column.
    const std::vector<std::string> &keys() const { return m_keys; }
    /// Returns the value of each column, or null if the pairs do not have the key.
    std::vector<const std::string *> valuesOf(const osg::ValuePairBase &pairs) const;

private:
    struct Key
    {
        bool isWanted;
        std::size_t columnCount;
        std::size_t firstColumn;
    };

    kavoPatterns m_patterns;
    std::map<std::string, Key> m_index;
    std::vector<std::string> m_keys;
};
