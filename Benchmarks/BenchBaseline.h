#pragma once

#include "BenchRow.h"

#include <kavoCustomPropertyGLenum.h>

#include <qttreepropertybrowser.h>
#include <qtvariantproperty.h>

/// The straightforward use of the property browser: every group enters the tree empty and is
/// filled row by row below its open top row; to empty the tree the browser is cleared, then the
/// manager. It is given the texts of the rows, so that it has less to do than the editor.
class BenchBaseline : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    BenchBaseline();

    void build(const BenchRow &top);
    void empty();

    /// The same with two simple remedies: the top row is closed while it is filled, and the rows
    /// are deleted, in the order in which they stand, before browser and manager are cleared.
    void buildClosed(const BenchRow &top);
    void emptyRowsFirst();

private:
    void add(const BenchRow &row, QtProperty *parent);
    void addGroup(const BenchRow &row, QtProperty *parent);
    void deleteRows(const QList<QtProperty *> &rows);
    QtProperty *makeValue(const BenchRow &row);
    QtProperty *makeVariant(const BenchRow &row);
    QtBrowserItem *collapse(QtProperty *property);

    bool m_closesTop = false;
    QtVariantPropertyManager m_variants;
    QtVariantEditorFactory m_variantEditors;
    QtGLenumPropertyManager m_enums;
    QtGLenumEditorFactory m_enumEditors;
    QtKavoColorPropertyManager m_colors;
    QtKavoColorEditorFactory m_colorEditors;
};
