// How the cost of a row grows with their number, up to 20,000. In a process of its own, so that the
// heap is as good for many rows as for few.

#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchSelection.h"
#include "BenchTable.h"

#include <OpenSG/OSGNode.h>

namespace {

using Times = BenchSelection::Times;

// Each of the variants has three rows.
Times nestedRows(BenchSelection &selection, int rows, int listLength, int rounds)
{
    const kavoNodePtr node = BenchScenes::makeNodeWithVariants(rows / 3, listLength);
    return selection.editor(osg::NodePtr(node), rounds);
}

void againstFloor(BenchSelection &selection, const Times &ours, int rounds)
{
    const int rows = selection.rowCount();
    const Times floor = selection.floor(rounds);
    BenchTable::atMost(
        BenchTable::named("nested groups, %d rows: a row, as against a bare tree widget", rows),
        1000 * ours.sum() / rows, 1000 * floor.sum() / rows, 40, "us");
}

void againstBaseline(BenchSelection &selection, const Times &ours)
{
    const int rows = selection.rowCount();
    const Times baseline = selection.baseline(1);
    BenchTable::faster(BenchTable::named("nested groups, %d rows: build and empty", rows),
        ours.sum(), baseline.sum(), 30);
    BenchTable::faster(
        BenchTable::named("nested groups, %d rows: empty", rows), ours.empty, baseline.empty, 60);
}

void againstRemedies(BenchSelection &selection, const Times &ours)
{
    const int rows = selection.rowCount();
    const Times simple = selection.baselineWithRemedies(3);
    BenchTable::atMost(
        BenchTable::named(
            "nested groups, %d rows: build, to a baseline with its top row closed", rows),
        ours.build, simple.build, 1, "ms");
    BenchTable::atMost(
        BenchTable::named(
            "nested groups, %d rows: empty, to a baseline that deletes its rows", rows),
        ours.empty, simple.empty, 1, "ms");
}

void growth(const char *name, int rows, int manyRows, double few, double many)
{
    BenchTable::atMost(name, 1000 * many / manyRows, 1000 * few / rows, 1.3, "us");
}

void nestedGroups(BenchSelection &selection)
{
    constexpr int listLength = 100;
    const Times few = nestedRows(selection, 2000, listLength, 15);
    const int fewRows = selection.rowCount();
    againstFloor(selection, few, 15);
    const Times many = nestedRows(selection, 20000, listLength, 7);
    const int manyRows = selection.rowCount();
    againstFloor(selection, many, 7);
    growth("nested groups: build a row of 20,000, as against one of 2,000", fewRows, manyRows,
        few.build, many.build);
    BenchTable::figure("nested groups: empty a row of 2,000", 1000 * few.empty / fewRows, "us");
    BenchTable::figure("nested groups: empty a row of 20,000", 1000 * many.empty / manyRows, "us");
    againstRemedies(selection, many);
    againstBaseline(selection, many);
}

// All groups of one list are siblings, whom the component counts for each one that it adds.
void oneLongList(BenchSelection &selection)
{
    const Times few = nestedRows(selection, 2000, 2000, 15);
    const int fewRows = selection.rowCount();
    const Times many = nestedRows(selection, 20000, 20000, 5);
    growth("one long list: build a row of 20,000, as against one of 2,000", fewRows,
        selection.rowCount(), few.build, many.build);
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    BenchSelection selection;
    nestedGroups(selection);
    oneLongList(selection);
    return 0;
}
