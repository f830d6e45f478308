#include "BenchFloor.h"

namespace {

QTreeWidgetItem *makeItem(const BenchRow &row)
{
    auto *item = new QTreeWidgetItem({ row.title, row.text });
    for (const BenchRow &child : row.children)
        item->addChild(makeItem(child));
    return item;
}

}

BenchFloor::BenchFloor()
{
    setColumnCount(2);
    setUniformRowHeights(true);
}

void BenchFloor::build(const BenchRow &top)
{
    QTreeWidgetItem *item = makeItem(top);
    addTopLevelItem(item);
    item->setExpanded(true);
}
