#include "BenchSelection.h"

#include "BenchClock.h"
#include "BenchHost.h"
#include "BenchPaintWatch.h"

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

kavoRecordedRow BenchSelection::rowsOf(const osg::FieldContainerPtr &container)
{
    m_editor.setFC("node", container);
    BenchHost::settle();
    kavoRecordedRow rows = kavoRecordedRow::record(m_editor);
    m_editor.setFC("", osg::NullFC);
    BenchHost::settle();
    return rows;
}

BenchSelection::Way BenchSelection::editor(const osg::FieldContainerPtr &container)
{
    return { [this, container] { m_editor.setFC("node", container); },
        [this] { m_editor.setFC("", osg::NullFC); } };
}

BenchSelection::Way BenchSelection::baseline(const kavoRecordedRow &rows)
{
    return { [this, &rows] { m_baseline.build(rows); }, [this] { m_baseline.empty(); } };
}

BenchSelection::Way BenchSelection::baselineWithRemedies(const kavoRecordedRow &rows)
{
    return { [this, &rows] { m_baseline.buildClosed(rows); },
        [this] { m_baseline.emptyRowsFirst(); } };
}

BenchSelection::Way BenchSelection::floor(const kavoRecordedRow &rows)
{
    return { [this, &rows] { m_floor.build(rows); }, [this] { m_floor.clear(); } };
}

std::vector<BenchSelection::Times> BenchSelection::alternate(
    int rounds, const std::vector<Way> &ways)
{
    std::vector<std::vector<double>> builds(ways.size()), empties(ways.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < ways.size(); ++i) {
            builds[i].push_back(BenchClock::time(ways[i].build));
            BenchHost::settle();
            empties[i].push_back(BenchClock::time(ways[i].empty));
            BenchHost::settle();
        }
    }
    std::vector<Times> times;
    for (std::size_t i = 0; i < ways.size(); ++i)
        times.push_back({ BenchClock::median(builds[i]), BenchClock::median(empties[i]) });
    return times;
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
