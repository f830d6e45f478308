#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <QKAVODockWindowManager.h>
#include <kavoConsoleCapture.h>
#include <kavoController.h>
#include <kavoMessageIds.h>
#include <kavoNodeEditor.h>
#include <kavoNodeEditorGUI.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGMaterial.h>

#include <QAction>
#include <QGridLayout>
#include <QStatusBar>
#include <QtTest>

using namespace kavoTreeRows;

class TestNodeEditor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void itRegistersWithTheHost();
    void itDocksItsWindowInTheSceneGroup();
    void theFormIsAsDesigned();
    void theEditorFillsTheFrame();
    void metaObjectsHoldTheDocumentedMembers();
    void showOfTheWindowIsASignal();
    void showingTheWindowLoadsTheSelection();
    void showingTheWindowWithoutASelectionEmptiesTheEditor();
    void aNodeIsNamedInTheTitle();
    void aNamelessNodeHasNothingBetweenTheBlanks();
    void aNullNodeLeavesTheBareTitle();
    void sceneClearedEmptiesTheEditor();
    void nodeShownShowsTheNode();
    void nodeShownWithoutNodeEmptiesTheEditorSilently();
    void nodeShownWithAnotherTypePrintsAndEmptiesTheEditor();
    void selectionChangedToNothingEmptiesTheEditor();
    void selectionChangedToANodeLeavesTheEditor();
    void otherMessagesLeaveTheEditor_data();
    void otherMessagesLeaveTheEditor();
    void everyMessageEmptiesAHiddenEditor_data();
    void everyMessageEmptiesAHiddenEditor();
    void aMaterialIsShownAndTheTitleStays();
    void aNullMaterialChangesNothing();
    void aMissingMaterialChangesNothing();
    void aMaterialOfAnotherTypeChangesNothing();
    void aMaterialChangesNothingWhileHidden();
    void anExceptionInTheDispatchIsLoggedAndOver();
    void anExceptionOnShowingTheWindowIsLoggedAndOver();
    void destructionPrintsItsNameAndLeavesTheHost();

private:
    kavoFCEditorWidget &editor() const;
    QString title() const;
    static QString titleOf(const osg::NodePtr &node, const char *name = "Root");
    bool send(int id, const boost::any &node = boost::any());
    void updateByMaterial(const boost::any &material);
    void setVisible(bool visible);

    kavoNodeEditor *m_module = nullptr;
    kavoNodePtr m_node;
};

void TestNodeEditor::initTestCase()
{
    QVERIFY(kavoTestHost::show());
    m_node = kavoTestScene::makeTruck();
}

void TestNodeEditor::cleanupTestCase()
{
    m_node = kavoNodePtr();
}

void TestNodeEditor::init()
{
    m_module = new kavoNodeEditor;
    setVisible(true);
    m_module->setNode(m_node);
}

void TestNodeEditor::cleanup()
{
    kavoScenegraph::setSelectedNode(osg::NullFC);
    QCoreApplication::processEvents();
    delete m_module;
}

kavoFCEditorWidget &TestNodeEditor::editor() const
{
    return *m_module->getWidget()->findChild<kavoFCEditorWidget *>();
}

QString TestNodeEditor::title() const
{
    return editor().properties().isEmpty() ? QString() : top(editor())->propertyName();
}

QString TestNodeEditor::titleOf(const osg::NodePtr &node, const char *name)
{
    return QStringLiteral("%1 Node (%2)").arg(name).arg(node.getFieldContainerId());
}

bool TestNodeEditor::send(int id, const boost::any &node)
{
    kavoMessage message(id);
    if (!node.empty())
        message.set("node", node);
    return m_module->receivedMessage(message);
}

void TestNodeEditor::updateByMaterial(const boost::any &material)
{
    kavoMessage message;
    if (!material.empty())
        message.set("material", material);
    QCOMPARE(kavoController::call("updateNodeEditorByMaterial", message, 0), 1);
}

void TestNodeEditor::setVisible(bool visible)
{
    QKAVODockWindowManager &docks = kavoTestHost::docks();
    if (visible)
        docks.show("Node Editor");
    else
        docks.toggleAction("Node Editor")->trigger();
    QCOMPARE(m_module->getWidget()->isVisible(), visible);
}

void TestNodeEditor::itRegistersWithTheHost()
{
    QVERIFY(kavoModuleBase::modules().back() == m_module);
    QCOMPARE(m_module->name(), std::string("Node Editor"));
    QCOMPARE(m_module->group(), std::string("Info"));
    QCOMPARE(m_module->messageMask(), 0x81130u);
    QVERIFY(!m_module->icon());
    QVERIFY(kavoNodeEditor::_the == m_module);
}

void TestNodeEditor::itDocksItsWindowInTheSceneGroup()
{
    const QKAVODockWindowManager &docks = kavoTestHost::docks();
    QCOMPARE(docks.window("Node Editor"), m_module->getWidget());
    QCOMPARE(docks.group("Node Editor"), QString("Scene"));
    QCOMPARE(docks.hintKey("Node Editor"), QString("Hintcard_Attributes"));
    QCOMPARE(docks.toggleAction("Node Editor")->text(), QString("Attributes"));
}

void TestNodeEditor::theFormIsAsDesigned()
{
    QMainWindow fresh;
    Ui::kavoNodeEditorGUI form;
    form.setupUi(&fresh);
    QCOMPARE(fresh.objectName(), QString("kavoNodeEditorGUI"));
    QCOMPARE(fresh.size(), QSize(459, 574));
    QCOMPARE(fresh.windowTitle(), QString("Node Editor"));
    QCOMPARE(fresh.centralWidget(), form.centralwidget);
    QCOMPARE(fresh.statusBar(), form.statusbar);
    QCOMPARE(form.centralwidget->layout(), form.gridLayout);
    QCOMPARE(form.gridLayout->contentsMargins(), QMargins());
    QCOMPARE(form.gridLayout->itemAtPosition(0, 0)->widget(), form._frame);
    QCOMPARE(form._frame->objectName(), QString("_frame"));
    QCOMPARE(form.statusbar->objectName(), QString("statusbar"));
}

void TestNodeEditor::theEditorFillsTheFrame()
{
    QCOMPARE(m_module->getWidget()->objectName(), QString("Module"));
    auto *layout = qobject_cast<QBoxLayout *>(editor().parentWidget()->layout());
    QCOMPARE(editor().parentWidget()->objectName(), QString("_frame"));
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
}

void TestNodeEditor::metaObjectsHoldTheDocumentedMembers()
{
    const QMetaObject &module = kavoNodeEditor::staticMetaObject;
    QCOMPARE(module.methodCount() - module.methodOffset(), 2);
    QCOMPARE(module.method(module.methodOffset()).methodSignature(), QByteArray("show()"));
    QCOMPARE(
        module.method(module.methodOffset() + 1).methodSignature(), QByteArray("editedField()"));
    const QMetaObject &window = kavoNodeEditorGUIW::staticMetaObject;
    QCOMPARE(window.methodCount() - window.methodOffset(), 1);
    QCOMPARE(window.method(window.methodOffset()).methodType(), QMetaMethod::Signal);
    auto *gui = qobject_cast<kavoNodeEditorGUIW *>(m_module->getWidget());
    QVERIFY(gui->qt_metacast("Ui::kavoNodeEditorGUI") == static_cast<Ui::kavoNodeEditorGUI *>(gui));
}

void TestNodeEditor::showOfTheWindowIsASignal()
{
    auto *gui = qobject_cast<kavoNodeEditorGUIW *>(m_module->getWidget());
    setVisible(false);
    QSignalSpy shown(gui, &kavoNodeEditorGUIW::show);
    gui->show();
    QCOMPARE(shown.size(), 1);
    QVERIFY(!gui->isVisible());
}

void TestNodeEditor::showingTheWindowLoadsTheSelection()
{
    setVisible(false);
    const osg::NodePtr wheel = osg::NodePtr(m_node)->getChild(0);
    kavoScenegraph::setSelectedNode(wheel);
    QCoreApplication::processEvents();
    setVisible(true);
    QCOMPARE(title(), titleOf(wheel, "Wheel"));
}

void TestNodeEditor::showingTheWindowWithoutASelectionEmptiesTheEditor()
{
    setVisible(false);
    setVisible(true);
    QCOMPARE(title(), QString());
    QCOMPARE(m_module->getWidget()->windowTitle(), QString("Node Editor"));
}

void TestNodeEditor::aNodeIsNamedInTheTitle()
{
    const QString id = QString::number(osg::NodePtr(m_node).getFieldContainerId());
    QCOMPARE(m_module->getWidget()->windowTitle(), "Node Editor - Root (" + id + ")");
    QCOMPARE(title(), titleOf(m_node));
}

void TestNodeEditor::aNamelessNodeHasNothingBetweenTheBlanks()
{
    const kavoNodePtr bare(kavoTestScene::makeNode(nullptr, osg::NullFC));
    m_module->setNode(bare);
    const QString id = QString::number(osg::NodePtr(bare).getFieldContainerId());
    QCOMPARE(m_module->getWidget()->windowTitle(), "Node Editor -  (" + id + ")");
    QCOMPARE(title(), titleOf(bare, ""));
    m_module->setNode(osg::NullFC);
}

void TestNodeEditor::aNullNodeLeavesTheBareTitle()
{
    m_module->setNode(osg::NullFC);
    QCOMPARE(m_module->getWidget()->windowTitle(), QString("Node Editor"));
    QCOMPARE(title(), QString());
}

void TestNodeEditor::sceneClearedEmptiesTheEditor()
{
    QVERIFY(!send(0x10));
    QCOMPARE(title(), QString());
}

void TestNodeEditor::nodeShownShowsTheNode()
{
    const osg::NodePtr wheel = osg::NodePtr(m_node)->getChild(0);
    QVERIFY(!send(0x100, wheel));
    QCOMPARE(title(), titleOf(wheel, "Wheel"));
}

void TestNodeEditor::nodeShownWithoutNodeEmptiesTheEditorSilently()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!send(0x100));
    QCOMPARE(errors.text(), QByteArray());
    QCOMPARE(title(), QString());
}

void TestNodeEditor::nodeShownWithAnotherTypePrintsAndEmptiesTheEditor()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!send(0x100, osg::MaterialPtr()));
    QVERIFY(errors.text().startsWith("getFromMessage : Attribute 'node' has wrong type"));
    QCOMPARE(title(), QString());
}

void TestNodeEditor::selectionChangedToNothingEmptiesTheEditor()
{
    QVERIFY(!send(0x80000));
    QCOMPARE(title(), QString());
}

void TestNodeEditor::selectionChangedToANodeLeavesTheEditor()
{
    const QtProperty *before = top(editor());
    kavoScenegraph::setSelectedNode(osg::NodePtr(m_node)->getChild(0));
    QVERIFY(!send(0x80000));
    QCOMPARE(top(editor()), before);
}

void TestNodeEditor::otherMessagesLeaveTheEditor_data()
{
    QTest::addColumn<int>("id");
    for (const int id : { 0, 0x20, 0x1000, 0x11, 0x80100 })
        QTest::addRow("0x%x", id) << id;
}

void TestNodeEditor::otherMessagesLeaveTheEditor()
{
    QFETCH(int, id);
    QVERIFY(!send(id, osg::NodePtr()));
    QCOMPARE(title(), titleOf(m_node));
}

void TestNodeEditor::everyMessageEmptiesAHiddenEditor_data()
{
    QTest::addColumn<int>("id");
    for (const int id : { 0, 0x10, 0x20, 0x100, 0x1000, 0x80000 })
        QTest::addRow("0x%x", id) << id;
}

void TestNodeEditor::everyMessageEmptiesAHiddenEditor()
{
    QFETCH(int, id);
    setVisible(false);
    QVERIFY(!send(id, osg::NodePtr(m_node)));
    QCOMPARE(title(), QString());
    QCOMPARE(m_module->getWidget()->windowTitle(), QString("Node Editor"));
}

void TestNodeEditor::aMaterialIsShownAndTheTitleStays()
{
    const osg::MaterialPtr material = kavoTestScene::makeMaterial();
    osg::addRefCP(material);
    const QString before = m_module->getWidget()->windowTitle();
    updateByMaterial(material);
    QVERIFY(title().startsWith(" ChunkMaterial ("));
    QCOMPARE(m_module->getWidget()->windowTitle(), before);
    osg::subRefCP(material);
}

void TestNodeEditor::aNullMaterialChangesNothing()
{
    updateByMaterial(osg::MaterialPtr());
    QCOMPARE(title(), titleOf(m_node));
}

void TestNodeEditor::aMissingMaterialChangesNothing()
{
    updateByMaterial(boost::any());
    QCOMPARE(title(), titleOf(m_node));
}

void TestNodeEditor::aMaterialOfAnotherTypeChangesNothing()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    updateByMaterial(osg::NodePtr(m_node));
    QVERIFY(errors.text().startsWith("getFromMessage : Attribute 'material' has wrong type"));
    QCOMPARE(title(), titleOf(m_node));
}

void TestNodeEditor::aMaterialChangesNothingWhileHidden()
{
    const osg::MaterialPtr material = kavoTestScene::makeMaterial();
    osg::addRefCP(material);
    setVisible(false);
    updateByMaterial(material);
    QCOMPARE(title(), titleOf(m_node));
    osg::subRefCP(material);
}

void TestNodeEditor::anExceptionInTheDispatchIsLoggedAndOver()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    osg::NodePtr(node)->addAttachment(osg::FieldSampler::create());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    osg::FieldSampler::accessThrows = true;
    QVERIFY(!send(0x100, osg::NodePtr(node)));
    osg::FieldSampler::accessThrows = false;
    QVERIFY(
        errors.text().contains("kavoNodeEditor::receivedMessage : An unknown exception occurred!"));
    QVERIFY(!send(0x100, osg::NodePtr(node)));
    setValue(editor(), "travMask", 5);
    QCOMPARE(osg::NodePtr(node)->getTravMask(), 5u);
    send(0x10);
}

void TestNodeEditor::anExceptionOnShowingTheWindowIsLoggedAndOver()
{
    setVisible(false);
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    osg::NodePtr(node)->addAttachment(osg::FieldSampler::create());
    kavoScenegraph::setSelectedNode(node);
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    osg::FieldSampler::accessThrows = true;
    setVisible(true);
    osg::FieldSampler::accessThrows = false;
    QVERIFY(errors.text().contains("Showing the selected node failed with an unknown exception"));
    kavoScenegraph::setSelectedNode(osg::NullFC);
}

void TestNodeEditor::destructionPrintsItsNameAndLeavesTheHost()
{
    const QPointer<QWidget> window = m_module->getWidget();
    kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    delete std::exchange(m_module, nullptr);
    QCOMPARE(output.text(), QByteArray("kavoNodeEditor::~kavoNodeEditor\n"));
    QVERIFY(!window);
    QVERIFY(kavoModuleBase::modules().empty());
    kavoMessage message;
    QCOMPARE(kavoController::call("updateNodeEditorByMaterial", message, 0), 0);
}

KAVO_TEST_MAIN(TestNodeEditor)
#include "tst_nodeeditor.moc"
