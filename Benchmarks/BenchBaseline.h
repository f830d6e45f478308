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

private:
    void add(const BenchRow &row, QtProperty *parent);
    void addGroup(const BenchRow &row, QtProperty *parent);
    QtProperty *makeValue(const BenchRow &row);
    QtProperty *makeVariant(const BenchRow &row);
    QtBrowserItem *collapse(QtProperty *property);

    QtVariantPropertyManager m_variants;
    QtVariantEditorFactory m_variantEditors;
    QtGLenumPropertyManager m_enums;
    QtGLenumEditorFactory m_enumEditors;
    QtKavoColorPropertyManager m_colors;
    QtKavoColorEditorFactory m_colorEditors;
};
