#pragma once

#include "OSGFieldSampler.h"

#include <kavoFCEditorWidget.h>

#include <memory>

/// An editor that shows a container with a field of every kind. Rows are known by their titles,
/// which are the fields' names.
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
    /// The field's value as the library writes it.
    QByteArray textOf(const QString &name);

    /// Fills the rows with the values that the fields have now.
    void refresh();
    /// Destroys the container and leaves its rows.
    void destroySampler();

    /// The same, with the rows on the screen.
    void show();
    /// Opens the row's editor by keyboard. \returns it, null if none opened
    QWidget *open(const QString &name);
    /// Opens the row's editor and replaces its text, unfinished. \returns the editor
    QWidget *type(const QString &name, const QString &text);
    /// Ends an open row editor.
    static void press(QWidget *rowEditor, Qt::Key key = Qt::Key_Return);

private:
    std::unique_ptr<kavoFCEditorWidget> m_editor;
    osg::FieldSamplerPtr m_sampler;
};
