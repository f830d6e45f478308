#pragma once

#include "BenchBaseline.h"
#include "BenchFloor.h"

#include <kavoFCEditorWidget.h>

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

    BenchSelection();

    /// Whether the views of editor and baseline take all rows for equally high, as the sources of
    /// the component that the build uses do. Others measure each row.
    void setUniformRowHeights(bool uniform);

    /// Medians of as many rounds. The rows of the last round are kept for the others.
    Times editor(const osg::FieldContainerPtr &container, int rounds);
    Times baseline(int rounds);
    Times baselineWithRemedies(int rounds);
    Times floor(int rounds);
    /// From a selection in place of the same until the tree is painted; the median.
    double untilPainted(const osg::FieldContainerPtr &container, int rounds);

    /// The rows that the editor showed last.
    int rowCount() const { return m_rows.count(); }

private:
    kavoFCEditorWidget m_editor;
    BenchBaseline m_baseline;
    BenchFloor m_floor;
    BenchRow m_rows;
};
