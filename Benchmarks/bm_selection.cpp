// Measures building and emptying the tree of a selection and compares other ways of showing the
// same rows.

#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchSelection.h"
#include "BenchTable.h"
#include "BenchTitles.h"

#include <OpenSG/OSGNode.h>

namespace {

void typicalSelection(BenchSelection &selection)
{
    const kavoNodePtr node = BenchScenes::makeTexturedNode();
    const kavoRecordedRow rows = selection.rowsOf(osg::NodePtr(node));
    const auto times = BenchSelection::alternate(
        101, { selection.editor(osg::NodePtr(node)), selection.baseline(rows) });
    const int count = rows.count();
    BenchTable::faster(BenchTable::named("typical selection, %d rows: build and empty", count),
        times[0].sum(), times[1].sum(), 1.5);
    BenchTable::figure(
        BenchTable::named("typical selection, %d rows: build", count), times[0].build, "ms");
    BenchTable::figure(
        BenchTable::named("typical selection, %d rows: empty", count), times[0].empty, "ms");
    BenchTable::figure(
        BenchTable::named("typical selection, %d rows: empty, build, first paint", count),
        selection.untilPainted(osg::NodePtr(node), 31), "ms");
}

void manyFields(BenchSelection &selection, const char *name)
{
    const osg::AttachmentPtr container = BenchScenes::makeManyFields();
    const kavoRecordedRow rows = selection.rowsOf(container);
    const auto times
        = BenchSelection::alternate(11, { selection.editor(container), selection.baseline(rows) });
    BenchTable::faster(BenchTable::named(name, rows.count()), times[0].sum(), times[1].sum(), 20);
}

void titlesAlone(int rows)
{
    BenchTitles titles;
    BenchHost::show(titles);
    const auto times = BenchSelection::alternate(
        31, { { [&] { titles.build(rows); }, [&] { titles.empty(); } } });
    BenchTable::figure(BenchTable::named("%d rows with a title alone: build and empty", rows),
        times[0].sum(), "ms");
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    BenchSelection selection;
    typicalSelection(selection);
    manyFields(selection, "container with 400 fields, %d rows: build and empty");
    titlesAlone(403);
    selection.setUniformRowHeights(false);
    manyFields(selection,
        "container with 400 fields, %d rows, view that measures each row: build and empty");
    return 0;
}
