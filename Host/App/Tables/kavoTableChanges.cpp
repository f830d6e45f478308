#include "Tables/kavoTableChanges.h"

#include "Tables/kavoValuePairs.h"

kavoTableChanges::kavoTableChanges(const kavoTable &table)
    : m_table(table)
    , m_pairs(table.columns.size(), none)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        m_keys[table.columns[i].first].columns.push_back(i);
}

void kavoTableChanges::compare(const kavoTable::Row &row, const osg::NodePtr &node)
{
    const std::size_t changesBefore = m_changes.size();
    findPairs(node);
    for (const kavoTable::Cell &cell : row.cells) {
        compareCell(node, cell.column, cell.text);
        m_pairs[cell.column] = none;
    }
    // Cells that were emptied. Where there was no pair, none is made.
    for (const auto &[key, column] : m_found) {
        if (m_table.missingCellsAreEmpty && m_pairs[column] != none)
            compareCell(node, column, std::string());
    }
    forgetPairs();
    m_nodeCount += m_changes.size() > changesBefore;
}

void kavoTableChanges::findPairs(const osg::NodePtr &node)
{
    const osg::ValuePairBase *pairs = kavoValuePairs::of(node);
    for (osg::UInt32 i = 0; pairs && i < pairs->getKeys().size(); ++i) {
        const auto found = m_keys.find(pairs->getKeys().getValues()[i]);
        if (found == m_keys.end() || found->second.occurrences == found->second.columns.size())
            continue;
        Key &key = found->second;
        const std::size_t column = key.columns[key.occurrences++];
        m_pairs[column] = int(i);
        m_found.emplace_back(&key, column);
    }
}

void kavoTableChanges::compareCell(
    const osg::NodePtr &node, std::size_t column, const std::string &cell)
{
    const int pair = m_pairs[column];
    const kavoCellText &cellText = m_table.cellText;
    if (pair != none
        && cellText.encode(kavoValuePairs::value(*kavoValuePairs::of(node), pair)) == cell)
        return;
    m_changes.push_back({ node, pair, column, cellText.decode(cell) });
}

void kavoTableChanges::forgetPairs()
{
    for (const auto &[key, column] : m_found) {
        key->occurrences = 0;
        m_pairs[column] = none;
    }
    m_found.clear();
}

void kavoTableChanges::write() const
{
    for (const Change &change : m_changes) {
        if (change.pair == none)
            kavoValuePairs::append(change.node, m_table.columns[change.column].first, change.value);
        else
            kavoValuePairs::setValue(change.node, change.pair, change.value);
    }
}
