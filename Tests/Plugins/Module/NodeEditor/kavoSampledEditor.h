#pragma once

#include "OSGFieldSampler.h"

#include <kavoFCEditorWidget.h>

#include <memory>

/// An editor that shows a FieldSampler. Rows are named by their titles, which are the names of the
/// fields.
class kavoSampledEditor
{
public:
    kavoSampledEditor();
    ~kavoSampledEditor();
    kavoSampledEditor(const kavoSampledEditor &) = delete;
    kavoSampledEditor &operator=(const kavoSampledEditor &) = delete;

    kavoFCEditorWidget &editor() { return *m_editor; }
    const osg::FieldSamplerPtr &sampler() const { return m_sampler; }
    osg::Field &field(const QString &name);
    /// Returns the field's value in the library's text form.
    QByteArray textOf(const QString &name);

    /// Rebuilds the rows from the current values of the fields.
    void refresh();
    /// Destroys the container and keeps its rows.
    void destroySampler();

    /// Rebuilds the rows and shows them on the screen.
    void show();
    /// Opens the row's editor with the keyboard.
    /// \returns the editor, null if none opened
    QWidget *open(const QString &name);
    /// Opens the row's editor and replaces its text without ending the edit.
    /// \returns the editor
    QWidget *type(const QString &name, const QString &text);
    /// Presses a key in an open row editor, by default the one that ends the edit.
    static void press(QWidget *rowEditor, Qt::Key key = Qt::Key_Return);

private:
    std::unique_ptr<kavoFCEditorWidget> m_editor;
    osg::FieldSamplerPtr m_sampler;
};
