#include "BenchSelection.h"

#include "BenchClock.h"
#include "BenchHost.h"
#include "BenchPaintWatch.h"

namespace {

template <class Build, class Empty>
BenchSelection::Times medians(int rounds, Build build, Empty empty)
{
    std::vector<double> builds, empties;
    for (int round = 0; round < rounds; ++round) {
        builds.push_back(BenchClock::time(build));
        BenchHost::settle();
        empties.push_back(BenchClock::time(empty));
        BenchHost::settle();
    }
    return { BenchClock::median(builds), BenchClock::median(empties) };
}

}

BenchSelection::BenchSelection()
    : m_editor(nullptr, "editor")
{
    BenchHost::show(m_editor);
    BenchHost::show(m_baseline);
    BenchHost::show(m_floor);
}

void BenchSelection::setUniformRowHeights(bool uniform)
{
    BenchHost::treeOf(m_editor).setUniformRowHeights(uniform);
    BenchHost::treeOf(m_baseline).setUniformRowHeights(uniform);
}

BenchSelection::Times BenchSelection::editor(const osg::FieldContainerPtr &container, int rounds)
{
    m_editor.setFC("node", container);
    m_rows = BenchRow::record(m_editor);
    BenchHost::settle();
    m_editor.setFC("node", osg::NullFC);
    return medians(
        rounds, [&] { m_editor.setFC("node", container); },
        [&] { m_editor.setFC("", osg::NullFC); });
}

BenchSelection::Times BenchSelection::baseline(int rounds)
{
    return medians(
        rounds, [&] { m_baseline.build(m_rows); }, [&] { m_baseline.empty(); });
}

BenchSelection::Times BenchSelection::baselineWithRemedies(int rounds)
{
    return medians(
        rounds, [&] { m_baseline.buildClosed(m_rows); }, [&] { m_baseline.emptyRowsFirst(); });
}

BenchSelection::Times BenchSelection::floor(int rounds)
{
    return medians(
        rounds, [&] { m_floor.build(m_rows); }, [&] { m_floor.clear(); });
}

double BenchSelection::untilPainted(const osg::FieldContainerPtr &container, int rounds)
{
    BenchPaintWatch watch(*BenchHost::treeOf(m_editor).viewport());
    m_editor.raise();
    m_editor.setFC("node", container);
    BenchHost::settle();
    return BenchClock::medianOf(rounds, [&] {
        watch.forget();
        const double time = BenchClock::wallTime([&] {
            m_editor.setFC("node", container);
            watch.waitForPaint();
        });
        BenchHost::settle();
        return time;
    });
}
