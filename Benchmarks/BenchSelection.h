#pragma once

#include "BenchFloor.h"

#include <kavoFCEditorWidget.h>
#include <kavoStraightforwardBrowser.h>

#include <functional>
#include <vector>

/// Measures the same rows in the editor, in the straightforward use of the component and in a bare
/// tree widget. Each has a window on the screen. The event loop runs between building and emptying,
/// as it does between two clicks.
class BenchSelection
{
public:
    /// In milliseconds.
    struct Times
    {
        double build = 0;
        double empty = 0;

        double sum() const { return build + empty; }
    };

    /// One way of showing some rows.
    struct Way
    {
        std::function<void()> build;
        std::function<void()> empty;
    };

    BenchSelection();

    /// If true, the views of editor and baseline assume that all rows have the same height. The
    /// component's sources that the build uses do so. Other versions measure each row.
    void setUniformRowHeights(bool uniform);

    /// The rows that the editor shows for a container.
    kavoRecordedRow rowsOf(const osg::FieldContainerPtr &container);

    Way editor(const osg::FieldContainerPtr &container);
    // `rows` must outlive the returned way.
    Way baseline(const kavoRecordedRow &rows);
    Way baselineWithRemedies(const kavoRecordedRow &rows);
    Way floor(const kavoRecordedRow &rows);

    /// The medians of `rounds` rounds. Each round runs all ways in turn, so that the load of the
    /// machine and the state of the heap affect all ways alike.
    static std::vector<Times> alternate(int rounds, const std::vector<Way> &ways);

    /// The median time from selecting the shown container again until the tree is painted.
    double untilPainted(const osg::FieldContainerPtr &container, int rounds);

private:
    kavoFCEditorWidget m_editor;
    kavoStraightforwardBrowser m_baseline;
    BenchFloor m_floor;
};
