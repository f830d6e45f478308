#pragma once

#include "kavoTreeRows.h"

#include <QWidget>

#include <memory>

/// Base class for tests of a property manager and its editor factory. Provides both, connected, and
/// a parent for editors.
template <class Manager, class EditorFactory, class Editor, class Value> class kavoEditorFixture
{
protected:
    struct Factory : EditorFactory
    {
        using EditorFactory::createEditor;
    };

    void setUp()
    {
        qRegisterMetaType<QtProperty *>("QtProperty*");
        m_parent = std::make_unique<QWidget>();
        m_manager = std::make_unique<Manager>();
        m_factory = std::make_unique<Factory>();
        m_factory->addPropertyManager(m_manager.get());
    }

    void tearDown()
    {
        m_factory.reset();
        m_manager.reset();
        m_parent.reset();
    }

    QtProperty *add(const QString &name, const Value &value)
    {
        QtProperty *property = m_manager->addProperty(name);
        m_manager->setValue(property, value);
        return property;
    }

    Editor *edit(QtProperty *property)
    {
        return qobject_cast<Editor *>(
            m_factory->createEditor(m_manager.get(), property, m_parent.get()));
    }

    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Factory> m_factory;
};
