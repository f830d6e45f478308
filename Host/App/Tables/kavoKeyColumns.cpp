#include "Tables/kavoKeyColumns.h"

#include "Tables/kavoValuePairs.h"

#include <algorithm>

kavoKeyColumns::kavoKeyColumns(const kavoPatterns &keys)
    : m_patterns(keys)
{
}

void kavoKeyColumns::add(const osg::ValuePairBase &pairs)
{
    std::map<std::string, std::size_t> count;
    for (const std::string &text : pairs.getKeys().getValues()) {
        auto place = m_index.find(text);
        if (place == m_index.end())
            place = m_index.emplace(text, Key { m_patterns.matches(text), 0, 0 }).first;
        Key &key = place->second;
        key.columnCount = std::max(key.columnCount, ++count[text]);
    }
}

void kavoKeyColumns::layOut()
{
    for (auto &[text, key] : m_index) {
        key.firstColumn = m_keys.size();
        if (key.isWanted)
            m_keys.insert(m_keys.end(), key.columnCount, text);
    }
}

std::vector<const std::string *> kavoKeyColumns::valuesOf(const osg::ValuePairBase &pairs) const
{
    std::vector<const std::string *> values(m_keys.size(), nullptr);
    const std::vector<std::string> &keys = pairs.getKeys().getValues();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const auto place = m_index.find(keys[i]);
        if (place == m_index.end() || !place->second.isWanted)
            continue;
        const auto begin = values.begin() + std::ptrdiff_t(place->second.firstColumn);
        const auto end = begin + std::ptrdiff_t(place->second.columnCount);
        const auto free = std::find(begin, end, nullptr);
        if (free != end)
            *free = &kavoValuePairs::value(pairs, int(i));
    }
    return values;
}
