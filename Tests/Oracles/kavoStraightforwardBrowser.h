#pragma once

#include "kavoRecordedRow.h"

#include <kavoCustomPropertyGLenum.h>

#include <qttreepropertybrowser.h>
#include <qtvariantproperty.h>

/// Straightforward use of the property browser. Every group enters the tree empty and is filled row
/// by row below its open top row. To empty the tree, the browser is cleared, then the manager.
/// Tests compare the editor's tree with this one, benchmarks compare the speed.
///
/// It gets the texts of the rows and so has less work than the editor. Its managers are the
/// component's own: a real number is shown with two decimals and has the range of an int.
class kavoStraightforwardBrowser : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    kavoStraightforwardBrowser();

    void build(const kavoRecordedRow &top);
    void empty();

    /// The same with two simple improvements: the top row is closed while it is filled, and rows
    /// are deleted from last to first before browser and manager are cleared.
    void buildClosed(const kavoRecordedRow &top);
    void emptyRowsFirst();

private:
    void add(const kavoRecordedRow &row, QtProperty *parent);
    void addGroup(const kavoRecordedRow &row, QtProperty *parent);
    void deleteRows(const QList<QtProperty *> &rows);
    QtProperty *makeValue(const kavoRecordedRow &row);
    QtProperty *makeVariant(const kavoRecordedRow &row);
    QtBrowserItem *collapse(QtProperty *property);

    bool m_closesTop = false;
    QtVariantPropertyManager m_variants;
    QtVariantEditorFactory m_variantEditors;
    QtGLenumPropertyManager m_enums;
    QtGLenumEditorFactory m_enumEditors;
    QtKavoColorPropertyManager m_colors;
    QtKavoColorEditorFactory m_colorEditors;
};
