#pragma once

#include "BenchFloor.h"

#include <kavoFCEditorWidget.h>
#include <kavoStraightforwardBrowser.h>

#include <functional>
#include <vector>

/// Times of the same rows in the editor, in the straightforward use of the component and in a bare
/// tree widget, each in a window on the screen. The event loop runs between building and emptying,
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

    /// Whether the views of editor and baseline take all rows for equally high, as the sources of
    /// the component that the build uses do. Others measure each row.
    void setUniformRowHeights(bool uniform);

    /// The rows that the editor shows of a container.
    kavoRecordedRow rowsOf(const osg::FieldContainerPtr &container);

    Way editor(const osg::FieldContainerPtr &container);
    // The rows must outlive what is returned.
    Way baseline(const kavoRecordedRow &rows);
    Way baselineWithRemedies(const kavoRecordedRow &rows);
    Way floor(const kavoRecordedRow &rows);

    /// Medians of as many rounds. Every round takes all ways in turn, so that what else the machine
    /// does, and the state of the heap, meet all of them alike.
    static std::vector<Times> alternate(int rounds, const std::vector<Way> &ways);

    /// From a selection in place of the same until the tree is painted; the median.
    double untilPainted(const osg::FieldContainerPtr &container, int rounds);

private:
    kavoFCEditorWidget m_editor;
    kavoStraightforwardBrowser m_baseline;
    BenchFloor m_floor;
};
