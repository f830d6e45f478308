#include "OSGFieldSampler.h"
#include "kavoModuleFixture.h"

#include <kavoConsoleCapture.h>
#include <kavoController.h>

#include <OpenSG/OSGMaterial.h>

#include <qtpropertybrowser.h>

using namespace kavoTreeRows;

// Reactions of the module to messages and callbacks.
class tst_NodeEditorMessages : public kavoModuleFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void sceneClearedEmptiesTheEditor();
    void nodeShownShowsTheNode();
    void nodeShownWithoutNodeEmptiesTheEditorSilently();
    void nodeShownWithAnotherTypePrintsAndEmptiesTheEditor();
    void selectionChangedToNothingEmptiesTheEditor();
    void selectionChangedToANodeLeavesTheEditor();
    void severalSelectionsInOneRoundFillTheEditorOnce();
    void otherMessagesLeaveTheEditor_data();
    void otherMessagesLeaveTheEditor();
    void everyMessageEmptiesAHiddenEditor_data();
    void everyMessageEmptiesAHiddenEditor();
    void anExceptionInAHiddenWindowReachesTheCaller();
    void aMaterialIsShownAndTheTitleStays();
    void aNullMaterialChangesNothing();
    void aMissingMaterialChangesNothing();
    void aMaterialOfAnotherTypeChangesNothing();
    void aMaterialChangesNothingWhileHidden();
    void anExceptionInTheDispatchIsLoggedAndOver();

private:
    bool send(int id, const boost::any &node = boost::any());
    void updateByMaterial(const boost::any &material);
};

void tst_NodeEditorMessages::initTestCase()
{
    QVERIFY(kavoTestHost::show());
    m_node = kavoTestScene::makeTruck();
}

void tst_NodeEditorMessages::cleanupTestCase()
{
    m_node = kavoNodePtr();
}

void tst_NodeEditorMessages::init()
{
    start();
}

void tst_NodeEditorMessages::cleanup()
{
    stop();
}

bool tst_NodeEditorMessages::send(int id, const boost::any &node)
{
    kavoMessage message(id);
    if (!node.empty())
        message.set("node", node);
    return m_module->receivedMessage(message);
}

void tst_NodeEditorMessages::updateByMaterial(const boost::any &material)
{
    kavoMessage message;
    if (!material.empty())
        message.set("material", material);
    QCOMPARE(kavoController::call("updateNodeEditorByMaterial", message, 0), 1);
}

void tst_NodeEditorMessages::sceneClearedEmptiesTheEditor()
{
    QVERIFY(!send(0x10));
    QCOMPARE(title(), QString());
}

void tst_NodeEditorMessages::nodeShownShowsTheNode()
{
    const osg::NodePtr wheel = osg::NodePtr(m_node)->getChild(0);
    QVERIFY(!send(0x100, wheel));
    QCOMPARE(title(), titleOf(wheel, "Wheel"));
}

void tst_NodeEditorMessages::nodeShownWithoutNodeEmptiesTheEditorSilently()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!send(0x100));
    QCOMPARE(errors.text(), QByteArray());
    QCOMPARE(title(), QString());
}

void tst_NodeEditorMessages::nodeShownWithAnotherTypePrintsAndEmptiesTheEditor()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!send(0x100, osg::MaterialPtr()));
    QVERIFY(errors.text().startsWith("getFromMessage : Attribute 'node' has wrong type"));
    QCOMPARE(title(), QString());
}

void tst_NodeEditorMessages::selectionChangedToNothingEmptiesTheEditor()
{
    QVERIFY(!send(0x80000));
    QCOMPARE(title(), QString());
}

void tst_NodeEditorMessages::selectionChangedToANodeLeavesTheEditor()
{
    const QtProperty *before = top(editor());
    kavoScenegraph::setSelectedNode(osg::NodePtr(m_node)->getChild(0));
    QVERIFY(!send(0x80000));
    QCOMPARE(top(editor()), before);
}

void tst_NodeEditorMessages::severalSelectionsInOneRoundFillTheEditorOnce()
{
    int fillings = 0;
    connect(top(editor())->propertyManager(), &QtAbstractPropertyManager::propertyInserted, this,
        [&](const QtProperty *row) { fillings += row->propertyName() == "travMask"; });
    const osg::NodePtr wheel = osg::NodePtr(m_node)->getChild(0);
    for (const osg::NodePtr &node : { wheel, osg::NodePtr(m_node), wheel->getChild(0), wheel })
        kavoScenegraph::setSelectedNode(node);
    QTRY_COMPARE(title(), titleOf(wheel, "Wheel"));
    QCoreApplication::processEvents();
    QCOMPARE(fillings, 1);
}

void tst_NodeEditorMessages::otherMessagesLeaveTheEditor_data()
{
    QTest::addColumn<int>("id");
    for (const int id : { 0, 0x20, 0x1000, 0x11, 0x80100 })
        QTest::addRow("0x%x", id) << id;
}

void tst_NodeEditorMessages::otherMessagesLeaveTheEditor()
{
    QFETCH(int, id);
    QVERIFY(!send(id, osg::NodePtr()));
    QCOMPARE(title(), titleOf(m_node));
}

void tst_NodeEditorMessages::everyMessageEmptiesAHiddenEditor_data()
{
    QTest::addColumn<int>("id");
    for (const int id : { 0, 0x10, 0x20, 0x100, 0x1000, 0x80000 })
        QTest::addRow("0x%x", id) << id;
}

void tst_NodeEditorMessages::everyMessageEmptiesAHiddenEditor()
{
    QFETCH(int, id);
    setVisible(false);
    QVERIFY(!send(id, osg::NodePtr(m_node)));
    QCOMPARE(title(), QString());
    QCOMPARE(m_module->getWidget()->windowTitle(), QString("Node Editor"));
}

void tst_NodeEditorMessages::anExceptionInAHiddenWindowReachesTheCaller()
{
    setVisible(false);
    const auto throwing
        = connect(m_module->getWidget(), &QWidget::windowTitleChanged, this, [] { throw 1; });
    QVERIFY_EXCEPTION_THROWN(send(0x20), int);
    disconnect(throwing);
}

void tst_NodeEditorMessages::aMaterialIsShownAndTheTitleStays()
{
    const osg::MaterialPtr material = kavoTestScene::makeMaterial();
    osg::addRefCP(material);
    const QString before = m_module->getWidget()->windowTitle();
    updateByMaterial(material);
    QVERIFY(title().startsWith(" ChunkMaterial ("));
    QCOMPARE(m_module->getWidget()->windowTitle(), before);
    osg::subRefCP(material);
}

void tst_NodeEditorMessages::aNullMaterialChangesNothing()
{
    updateByMaterial(osg::MaterialPtr());
    QCOMPARE(title(), titleOf(m_node));
}

void tst_NodeEditorMessages::aMissingMaterialChangesNothing()
{
    updateByMaterial(boost::any());
    QCOMPARE(title(), titleOf(m_node));
}

void tst_NodeEditorMessages::aMaterialOfAnotherTypeChangesNothing()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    updateByMaterial(osg::NodePtr(m_node));
    QVERIFY(errors.text().startsWith("getFromMessage : Attribute 'material' has wrong type"));
    QCOMPARE(title(), titleOf(m_node));
}

void tst_NodeEditorMessages::aMaterialChangesNothingWhileHidden()
{
    const osg::MaterialPtr material = kavoTestScene::makeMaterial();
    osg::addRefCP(material);
    setVisible(false);
    updateByMaterial(material);
    QCOMPARE(title(), titleOf(m_node));
    osg::subRefCP(material);
}

void tst_NodeEditorMessages::anExceptionInTheDispatchIsLoggedAndOver()
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

KAVO_TEST_MAIN(tst_NodeEditorMessages)
#include "tst_nodeeditormessages.moc"
