// Measures how the cost of a row in one long list of groups grows with the number of rows, up to
// 20,000. All groups are siblings, and the component searches all siblings for each group that it
// adds. The benchmark has a process of its own, so that it starts with an unused heap.

#include "BenchHost.h"
#include "BenchScenes.h"
#include "BenchSelection.h"
#include "BenchTable.h"

#include <OpenSG/OSGNode.h>

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    BenchSelection selection;
    const kavoNodePtr few = BenchScenes::makeNodeWithVariants(666, 666);
    const kavoNodePtr many = BenchScenes::makeNodeWithVariants(6666, 6666);
    const int fewRows = selection.rowsOf(osg::NodePtr(few)).count();
    const int manyRows = selection.rowsOf(osg::NodePtr(many)).count();
    const auto times = BenchSelection::alternate(
        11, { selection.editor(osg::NodePtr(few)), selection.editor(osg::NodePtr(many)) });
    BenchTable::atMost("one long list: build a row, 20,000 rows versus 2,000",
        1000 * times[1].build / manyRows, 1000 * times[0].build / fewRows, 1.3, "us");
    return 0;
}
