#include "kavoTableImport.h"

#include "kavoRowPlacer.h"
#include "kavoTableReader.h"
#include "kavoValuePairs.h"

#include <QCoreApplication>

#include <unordered_map>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("kavoTableImport", text);
}

QString unplaced(const kavoTable::Row &row, int sameNodeAs)
{
    const QString reason = sameNodeAs == 0 ? tr("the scene has no such node")
                                           : tr("line %1 is about the same node").arg(sameNodeAs);
    return tr("line %1: '%2' (id %3): %4")
        .arg(row.line)
        .arg(QString::fromStdString(row.path))
        .arg(row.id)
        .arg(reason);
}

// The node's pair of that column, -1 if it has none.
int indexOf(const osg::NodePtr &node, const kavoTable::Column &column)
{
    const osg::ValuePairBase *pairs = kavoValuePairs::of(node);
    int occurrence = 0;
    for (osg::UInt32 i = 0; pairs && i < pairs->getKeys().size(); ++i) {
        const std::string &key = pairs->getKeys().getValues()[i];
        if (kavoCellText::validUtf8(key) == column.first && occurrence++ == column.second)
            return int(i);
    }
    return -1;
}

// \returns whether the node's value is another one now
bool setCell(const osg::NodePtr &node, const kavoTable::Column &column, const std::string &cell,
    const kavoCellText &cellText)
{
    const int index = indexOf(node, column);
    if (index < 0) {
        kavoValuePairs::append(node, column.first, cellText.decode(cell));
        return true;
    }
    if (cellText.encode(kavoValuePairs::value(*kavoValuePairs::of(node), index)) == cell)
        return false;
    kavoValuePairs::setValue(node, index, cellText.decode(cell));
    return true;
}

}

QString kavoTableImport::Report::summary() const
{
    return tr("Changed values: %1, nodes: %2").arg(changedValues).arg(changedNodes);
}

kavoTableImport::Report kavoTableImport::run(
    const osg::NodePtr &root, const QString &fileName, const kavoTableOptions &options)
{
    const kavoTable table = kavoTableReader::read(fileName, options);
    const kavoRowPlacer placer(table.rows, root);
    std::unordered_map<osg::UInt32, int> lines;
    Report report;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const kavoTable::Row &row = table.rows[i];
        const osg::NodePtr node = placer.nodes()[i];
        int &line = lines[node == osg::NullFC ? 0 : node.getFieldContainerId()];
        if (node == osg::NullFC || line != 0) {
            report.unplacedRows.append(unplaced(row, line));
            continue;
        }
        line = row.line;
        const int changes = apply(table, row, node);
        report.changedValues += changes;
        report.changedNodes += changes > 0;
    }
    return report;
}

int kavoTableImport::apply(
    const kavoTable &table, const kavoTable::Row &row, const osg::NodePtr &node)
{
    int changes = 0;
    for (const auto &[column, cell] : row.cells)
        changes += setCell(node, column, cell, table.cellText);
    // Cells that were emptied. Where there was no pair, none is made.
    for (const kavoTable::Column &column : table.columns) {
        if (row.cells.count(column) == 0 && indexOf(node, column) >= 0)
            changes += setCell(node, column, std::string(), table.cellText);
    }
    return changes;
}
