#pragma once

#include "kavoTreeRows.h"

#include <QKAVODockWindowManager.h>
#include <kavoNodeEditor.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <QAction>
#include <QtTest>

/// A module in the test host. Its window is open and shows the root of a truck.
class kavoModuleFixture : public QObject
{
protected:
    void start()
    {
        m_module = new kavoNodeEditor;
        setVisible(true);
        m_module->setNode(m_node);
    }

    void stop()
    {
        kavoScenegraph::setSelectedNode(osg::NullFC);
        QCoreApplication::processEvents();
        delete m_module;
    }

    kavoFCEditorWidget &editor() const
    {
        return *m_module->getWidget()->findChild<kavoFCEditorWidget *>();
    }

    /// Returns the title of the editor's top row, empty if there is none.
    QString title() const
    {
        return editor().properties().isEmpty() ? QString()
                                               : kavoTreeRows::top(editor())->propertyName();
    }

    static QString titleOf(const osg::NodePtr &node, const char *name = "Root")
    {
        return QStringLiteral("%1 Node (%2)").arg(name).arg(node.getFieldContainerId());
    }

    void setVisible(bool visible)
    {
        QKAVODockWindowManager &docks = kavoTestHost::docks();
        if (visible)
            docks.show("Node Editor");
        else
            docks.toggleAction("Node Editor")->trigger();
        QCOMPARE(m_module->getWidget()->isVisible(), visible);
    }

    kavoNodeEditor *m_module = nullptr;
    kavoNodePtr m_node;
};
