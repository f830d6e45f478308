#include "BenchFloor.h"

namespace {

QTreeWidgetItem *makeItem(const kavoRecordedRow &row)
{
    auto *item = new QTreeWidgetItem({ row.title, row.text });
    for (const kavoRecordedRow &child : row.children)
        item->addChild(makeItem(child));
    return item;
}

}

BenchFloor::BenchFloor()
{
    setColumnCount(2);
    setUniformRowHeights(true);
}

void BenchFloor::build(const kavoRecordedRow &top)
{
    QTreeWidgetItem *item = makeItem(top);
    addTopLevelItem(item);
    item->setExpanded(true);
}
