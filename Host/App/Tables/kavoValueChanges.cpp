#include "Tables/kavoValueChanges.h"

#include "Tables/kavoValuePairs.h"

kavoValueChanges::kavoValueChanges(const kavoImportedTable &table)
    : m_table(table)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        m_columns.emplace(table.columns[i], i);
}

void kavoValueChanges::compare(const kavoImportedTable::Row &row, const osg::NodePtr &node)
{
    const std::size_t changesBefore = m_changes.size();
    std::map<std::size_t, int> pairs = pairsByColumn(node);
    for (const kavoImportedTable::Cell &cell : row.cells) {
        const auto pair = pairs.find(cell.column);
        compareCell(node, pair == pairs.end() ? none : pair->second, cell.column, cell.text);
        pairs.erase(cell.column);
    }
    if (m_table.missingCellsAreEmpty) {
        for (const auto &[column, pair] : pairs)
            compareCell(node, pair, column, std::string());
    }
    m_nodeCount += m_changes.size() > changesBefore;
}

// Leaves out pairs whose key the table does not have, or does not have often enough.
std::map<std::size_t, int> kavoValueChanges::pairsByColumn(const osg::NodePtr &node) const
{
    std::map<std::size_t, int> found;
    std::map<std::string, int> occurrences;
    const osg::ValuePairBase *pairs = kavoValuePairs::of(node);
    for (osg::UInt32 i = 0; pairs && i < pairs->getKeys().size(); ++i) {
        const std::string &key = pairs->getKeys().getValues()[i];
        const auto column = m_columns.find({ key, occurrences[key]++ });
        if (column != m_columns.end())
            found.emplace(column->second, int(i));
    }
    return found;
}

void kavoValueChanges::compareCell(
    const osg::NodePtr &node, int pair, std::size_t column, const std::string &cell)
{
    const kavoCellText &cellText = m_table.cellText;
    if (pair != none
        && cellText.encode(kavoValuePairs::value(*kavoValuePairs::of(node), pair)) == cell)
        return;
    m_changes.push_back({ node, pair, column, cellText.decode(cell) });
}

void kavoValueChanges::write() const
{
    for (const Change &change : m_changes) {
        if (change.pair == none)
            kavoValuePairs::append(change.node, m_table.columns[change.column].first, change.value);
        else
            kavoValuePairs::setValue(change.node, change.pair, change.value);
    }
}
