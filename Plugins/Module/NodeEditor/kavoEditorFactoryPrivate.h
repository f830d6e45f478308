#pragma once

#include <qtpropertybrowser.h>

#include <QList>
#include <QMap>

#include <algorithm>

/// Registers the open editors of each property. Base of the private parts of the editor factories.
///
/// The component has an internal template EditorFactoryPrivate with the same members but other
/// functions. This one needs a name of its own.
template <class Editor> class kavoEditorFactoryPrivate
{
public:
    using EditorList = QList<Editor *>;

    Editor *createEditor(QtProperty *property, QWidget *parent);
    void initializeEditor(QtProperty *property, Editor *editor);
    void slotEditorDestroyed(QObject *object);

    QMap<QtProperty *, EditorList> m_createdEditors;
    QMap<Editor *, QtProperty *> m_editorToProperty;
};

template <class Editor>
Editor *kavoEditorFactoryPrivate<Editor>::createEditor(QtProperty *property, QWidget *parent)
{
    auto *editor = new Editor(parent);
    initializeEditor(property, editor);
    return editor;
}

// An editor may outlive its property: a browser closes editors with a delay, and a manager may be
// destroyed without any browser. Such an editor is removed here, so that nobody reads the destroyed
// property.
template <class Editor>
void kavoEditorFactoryPrivate<Editor>::initializeEditor(QtProperty *property, Editor *editor)
{
    m_createdEditors[property].append(editor);
    m_editorToProperty.insert(editor, property);

    QtAbstractPropertyManager *manager = property->propertyManager();
    QObject::connect(manager, &QtAbstractPropertyManager::propertyDestroyed, editor,
        [this, manager, property, editor](QtProperty *destroyed) {
            if (destroyed != property)
                return;
            slotEditorDestroyed(editor);
            manager->disconnect(editor);
        });
}

template <class Editor> void kavoEditorFactoryPrivate<Editor>::slotEditorDestroyed(QObject *object)
{
    const QList<Editor *> editors = m_editorToProperty.keys();
    const auto editor = std::find(editors.begin(), editors.end(), object);
    if (editor == editors.end())
        return;
    const auto created = m_createdEditors.find(m_editorToProperty.take(*editor));
    created->removeAll(*editor);
    if (created->isEmpty())
        m_createdEditors.erase(created);
}
