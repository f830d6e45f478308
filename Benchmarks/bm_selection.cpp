// Building and emptying the tree of a selection, as ratios to other ways of showing the same rows.

#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchSelection.h"
#include "BenchTable.h"

#include <OpenSG/OSGNode.h>

namespace {

using Times = BenchSelection::Times;

void typicalSelection(BenchSelection &selection)
{
    const kavoNodePtr node = BenchScenes::makeTexturedNode();
    const Times ours = selection.editor(osg::NodePtr(node), 31);
    const Times baseline = selection.baseline(31);
    const int rows = selection.rowCount();
    BenchTable::faster(BenchTable::named("typical selection, %d rows: build and empty", rows),
        ours.sum(), baseline.sum(), 1.5);
    BenchTable::figure(
        BenchTable::named("typical selection, %d rows: build", rows), ours.build, "ms");
    BenchTable::figure(
        BenchTable::named("typical selection, %d rows: empty", rows), ours.empty, "ms");
    BenchTable::below(
        BenchTable::named("typical selection, %d rows: empty, build, first paint", rows),
        selection.untilPainted(osg::NodePtr(node), 31), 8, "ms");
}

void manyFields(BenchSelection &selection, const char *name)
{
    const Times ours = selection.editor(BenchScenes::makeManyFields(), 11);
    const Times baseline = selection.baseline(3);
    BenchTable::faster(
        BenchTable::named(name, selection.rowCount()), ours.sum(), baseline.sum(), 20);
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    BenchSelection selection;
    typicalSelection(selection);
    manyFields(selection, "container with 400 fields, %d rows: build and empty");
    selection.setUniformRowHeights(false);
    manyFields(selection, "the same in a view that measures each row, %d rows");
    return 0;
}
