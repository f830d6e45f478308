#include "Tables/kavoTableColumns.h"

#include <algorithm>

kavoTableColumns::kavoTableColumns(const kavoPatterns &keys)
    : m_patterns(keys)
{
}

void kavoTableColumns::add(const osg::ValuePairBase &pairs)
{
    const std::vector<std::string> &keys = pairs.getKeys().getValues();
    std::unordered_map<std::string, int> count;
    for (const std::string &key : keys) {
        auto place = m_index.find(key);
        if (place == m_index.end())
            place = m_index.emplace(key, Key { m_patterns.matches(key), 0, 0 }).first;
        place->second.columns = std::max(place->second.columns, ++count[key]);
    }
}

void kavoTableColumns::layOut()
{
    m_keys.clear();
    for (const auto &[text, key] : m_index)
        m_keys.insert(m_keys.end(), key.isWanted ? key.columns : 0, text);
    std::sort(m_keys.begin(), m_keys.end());
    for (std::size_t i = m_keys.size(); i > 0; --i)
        m_index[m_keys[i - 1]].firstColumn = i - 1;
}

void kavoTableColumns::fill(
    const osg::ValuePairBase &pairs, std::vector<const std::string *> &cells) const
{
    static const std::string missing;
    const std::vector<std::string> &keys = pairs.getKeys().getValues();
    const std::vector<std::string> &values = pairs.getValues().getValues();
    cells.assign(m_keys.size(), nullptr);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const auto place = m_index.find(keys[i]);
        if (place == m_index.end() || !place->second.isWanted)
            continue;
        std::size_t column = place->second.firstColumn;
        while (column < cells.size() && cells[column] && m_keys[column] == keys[i])
            ++column;
        if (column < cells.size() && m_keys[column] == keys[i])
            cells[column] = i < values.size() ? &values[i] : &missing;
    }
}
