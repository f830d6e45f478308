#pragma once

#include <kavoCustomPropertyColor.h>
#include <kavoFCEditorWidget.h>

#include <vector>

/// A row of an editor's tree with the rows below it. Another browser can build the same tree from
/// it.
struct kavoRecordedRow
{
    enum Manager { Variant, Enum, Color };

    Manager manager = Variant;
    int type = 0; ///< type in the variant manager
    QString title;
    QString text; ///< value of a variant row
    unsigned int number = 0; ///< value of an enumeration row
    colorVal color {}; ///< value of a colour row
    QString toolTip;
    bool open = false;
    std::vector<kavoRecordedRow> children;

    /// Returns the editor's only top row with all rows below it.
    static kavoRecordedRow record(const kavoFCEditorWidget &editor);

    /// Returns true for containers and lists, false for values, which may have sub-rows too.
    bool isGroup() const;
    /// Returns the number of rows including this one.
    int count() const;
};
