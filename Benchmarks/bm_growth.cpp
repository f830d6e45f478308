// Measures how the cost of a row in nested groups grows with the number of rows, up to 20,000, and
// compares other ways of showing the same rows. Each variant has three rows.

#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchSelection.h"
#include "BenchTable.h"

#include <OpenSG/OSGNode.h>

namespace {

constexpr int listLength = 100;

void growth(BenchSelection &selection)
{
    const kavoNodePtr few = BenchScenes::makeNodeWithVariants(666, listLength);
    const kavoNodePtr many = BenchScenes::makeNodeWithVariants(6666, listLength);
    const int fewRows = selection.rowsOf(osg::NodePtr(few)).count();
    const int manyRows = selection.rowsOf(osg::NodePtr(many)).count();
    const auto times = BenchSelection::alternate(
        11, { selection.editor(osg::NodePtr(few)), selection.editor(osg::NodePtr(many)) });
    BenchTable::atMost("nested groups: build a row, 20,000 rows versus 2,000",
        1000 * times[1].build / manyRows, 1000 * times[0].build / fewRows, 1.3, "us");
    BenchTable::figure(
        "nested groups, 2,000 rows: remove a row", 1000 * times[0].empty / fewRows, "us");
    BenchTable::figure(
        "nested groups, 20,000 rows: remove a row", 1000 * times[1].empty / manyRows, "us");
}

void againstFloor(BenchSelection &selection, int variants)
{
    const kavoNodePtr node = BenchScenes::makeNodeWithVariants(variants, listLength);
    const kavoRecordedRow rows = selection.rowsOf(osg::NodePtr(node));
    const auto times = BenchSelection::alternate(
        11, { selection.editor(osg::NodePtr(node)), selection.floor(rows) });
    const int count = rows.count();
    BenchTable::atMost(
        BenchTable::named("nested groups, %d rows: a row, versus a bare tree widget", count),
        1000 * times[0].sum() / count, 1000 * times[1].sum() / count, 40, "us");
}

// This baseline deletes its rows from the last to the first, then clears browser and manager.
void againstRemedies(BenchSelection &selection)
{
    const kavoNodePtr node = BenchScenes::makeNodeWithVariants(3333, listLength);
    const kavoRecordedRow rows = selection.rowsOf(osg::NodePtr(node));
    const auto times = BenchSelection::alternate(
        5, { selection.editor(osg::NodePtr(node)), selection.baselineWithRemedies(rows) });
    const int count = rows.count();
    BenchTable::atMost(
        BenchTable::named(
            "nested groups, %d rows: build, versus a baseline with its top row closed", count),
        times[0].build, times[1].build, 1, "ms");
    BenchTable::atMost(
        BenchTable::named(
            "nested groups, %d rows: empty, versus a baseline that deletes its rows first", count),
        times[0].empty, times[1].empty, 1, "ms");
}

void againstBaseline(BenchSelection &selection)
{
    const kavoNodePtr node = BenchScenes::makeNodeWithVariants(6666, listLength);
    const kavoRecordedRow rows = selection.rowsOf(osg::NodePtr(node));
    const auto times = BenchSelection::alternate(
        1, { selection.editor(osg::NodePtr(node)), selection.baseline(rows) });
    const int count = rows.count();
    BenchTable::faster(BenchTable::named("nested groups, %d rows: build and empty", count),
        times[0].sum(), times[1].sum(), 30);
    BenchTable::faster(BenchTable::named("nested groups, %d rows: empty", count), times[0].empty,
        times[1].empty, 60);
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    BenchSelection selection;
    growth(selection);
    againstFloor(selection, 666);
    againstFloor(selection, 6666);
    againstRemedies(selection);
    againstBaseline(selection);
    return 0;
}
