#pragma once

#include <kavoCustomPropertyColor.h>
#include <kavoFCEditorWidget.h>

#include <vector>

/// One row of a finished editor with the rows below it, so that the very same tree can be built in
/// another way.
struct kavoRecordedRow
{
    enum Manager { Variant, Enum, Color };

    Manager manager = Variant;
    int type = 0; ///< of the variant manager
    QString title;
    QString text; ///< of a variant row
    unsigned int number = 0; ///< of an enumeration row
    colorVal color {}; ///< of a colour row
    QString toolTip;
    bool open = false;
    std::vector<kavoRecordedRow> children;

    /// The editor's only top row and all below it.
    static kavoRecordedRow record(const kavoFCEditorWidget &editor);

    /// A container or a list, as opposed to a value, which may have rows of its own.
    bool isGroup() const;
    /// Rows in all, this one included.
    int count() const;
};
