#include "BareHost/BareHost.h"

#include <kavoFCEditorWidget.h>
#include <kavoNodeEditor.h>
#include <kavoNodeEditorGUI.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>

#include <QApplication>
#include <QtTest>

using namespace BareHost;

// The plug-in in a host whose headers declare only what the plug-in may use. The main part of this
// test is that it compiles.
class tst_BareHost : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_module = std::make_unique<kavoNodeEditor>(); }
    void cleanup();
    void theModuleRegistersItself();
    void theWindowIsDockedByOneCall();
    void aNamelessNodeIsShown();
    void destructionLeavesTheHost();

private:
    std::unique_ptr<kavoNodeEditor> m_module;
};

void tst_BareHost::cleanup()
{
    m_module.reset();
    calls() = Calls();
}

void tst_BareHost::theModuleRegistersItself()
{
    QCOMPARE(calls().modules, QStringList("Node Editor, Info, 0x81130, no icon"));
    QCOMPARE(calls().callbacks, QStringList("updateNodeEditorByMaterial"));
    QCOMPARE(m_module->getWidget()->parentWidget(), &mainWindow());
}

void tst_BareHost::theWindowIsDockedByOneCall()
{
    QCOMPARE(calls().docks.size(), 1);
    const DockCall &dock = calls().docks.first();
    QCOMPARE(dock.key, QString("Node Editor"));
    QCOMPARE(dock.group, QString("Scene"));
    QCOMPARE(dock.widget, m_module->getWidget());
    QCOMPARE(dock.hintKey, QString("Hintcard_Attributes"));
    QCOMPARE(dock.icon.cacheKey(), icon().cacheKey());
    QCOMPARE(dock.title, QString("Attributes"));
    QCOMPARE(dock.area, Qt::NoDockWidgetArea);
    QCOMPARE(dock.visible, true);
    QCOMPARE(dock.menu, nullptr);
}

void tst_BareHost::aNamelessNodeIsShown()
{
    const osg::NodePtr node = osg::Node::create();
    osg::addRefCP(node);
    node->setCore(osg::Group::create());
    m_module->setNode(node);
    QCOMPARE(m_module->getWidget()->windowTitle(),
        QStringLiteral("Node Editor -  (%1)").arg(node.getFieldContainerId()));
    const auto *editor = m_module->getWidget()->findChild<kavoFCEditorWidget *>();
    QCOMPARE(editor->properties().size(), 1);
    m_module->setNode(osg::NullFC);
    osg::subRefCP(node);
}

void tst_BareHost::destructionLeavesTheHost()
{
    m_module.reset();
    QCOMPARE(calls().modules, QStringList());
    QCOMPARE(calls().callbacks, QStringList());
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    osg::osgInit(argc, argv);
    tst_BareHost test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_barehost.moc"
