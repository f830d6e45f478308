#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoModuleBase.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <QTest>

namespace {

class Listener : public kavoModuleBase
{
public:
    Listener()
        : kavoModuleBase("Listener", "Test", ~0u)
    {
    }

    bool receivedMessage(kavoMessage &message) override
    {
        ids << message.id();
        if (message.id() == kavoMessageIds::nodeShown)
            shown = boost::any_cast<osg::NodePtr>(message.get("node"));
        return false;
    }

    QList<int> ids;
    osg::NodePtr shown;
};

const QList<int> selectionOfANode { kavoMessageIds::selectionChanged, kavoMessageIds::nodeShown };

} // namespace

class tst_kavoScenegraph : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void nothingIsSelectedAtFirst();
    void theSelectionFollowsAtOnceAndItsMessagesLater();
    void ofSeveralSelectionsOnlyTheLastIsAnnounced();
    void selectingNothingSendsNoNode();
    void selectingTheSelectedNodeAgainShowsItAgain();
    void aModuleMaySelectWhileItHearsOfASelection();
    void theSelectionKeepsItsNodeAlive();
    void theRootIsReferenced();
    void anotherRootDropsTheSelection();
    void theSameRootAgainKeepsTheSelection();
    void aNodeIsCalledByItsDisplayName();
};

void tst_kavoScenegraph::cleanup()
{
    kavoScenegraph::setRoot(osg::NullFC);
    kavoScenegraph::setSelectedNode(osg::NullFC);
    QCoreApplication::processEvents();
}

void tst_kavoScenegraph::nothingIsSelectedAtFirst()
{
    QVERIFY(kavoScenegraph::getSelectedNode() == osg::NullFC);
    QVERIFY(kavoScenegraph::getRoot() == osg::NullFC);
}

void tst_kavoScenegraph::theSelectionFollowsAtOnceAndItsMessagesLater()
{
    Listener listener;
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    kavoScenegraph::setSelectedNode(node);
    QVERIFY(kavoScenegraph::getSelectedNode() == node);
    QVERIFY(listener.ids.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(listener.ids, selectionOfANode);
    QVERIFY(listener.shown == osg::NodePtr(node));
}

void tst_kavoScenegraph::ofSeveralSelectionsOnlyTheLastIsAnnounced()
{
    Listener listener;
    const kavoNodePtr a(kavoTestScene::makeGroup("a")), b(kavoTestScene::makeGroup("b"));
    kavoScenegraph::setSelectedNode(a);
    kavoScenegraph::setSelectedNode(osg::NullFC);
    kavoScenegraph::setSelectedNode(b);
    QCoreApplication::processEvents();
    QCOMPARE(listener.ids, selectionOfANode);
    QVERIFY(listener.shown == osg::NodePtr(b));
}

void tst_kavoScenegraph::selectingNothingSendsNoNode()
{
    Listener listener;
    kavoScenegraph::setSelectedNode(osg::NullFC);
    QCoreApplication::processEvents();
    QCOMPARE(listener.ids, QList<int> { kavoMessageIds::selectionChanged });
}

void tst_kavoScenegraph::selectingTheSelectedNodeAgainShowsItAgain()
{
    Listener listener;
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    for (int i = 0; i < 2; ++i) {
        kavoScenegraph::setSelectedNode(node);
        QCoreApplication::processEvents();
    }
    QCOMPARE(listener.ids, selectionOfANode + selectionOfANode);
}

void tst_kavoScenegraph::aModuleMaySelectWhileItHearsOfASelection()
{
    class Follower : public Listener
    {
    public:
        bool receivedMessage(kavoMessage &message) override
        {
            if (ids.isEmpty())
                kavoScenegraph::setSelectedNode(osg::NullFC);
            return Listener::receivedMessage(message);
        }
    } follower;
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    kavoScenegraph::setSelectedNode(node);
    QTRY_COMPARE(follower.ids.size(), 2);
    QCOMPARE(follower.ids,
        QList<int>({ kavoMessageIds::selectionChanged, kavoMessageIds::selectionChanged }));
}

void tst_kavoScenegraph::theSelectionKeepsItsNodeAlive()
{
    const osg::NodePtr node = kavoTestScene::makeGroup("a");
    const osg::UInt32 id = node.getFieldContainerId();
    kavoScenegraph::setSelectedNode(node);
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(id) != osg::NullFC);
    kavoScenegraph::setSelectedNode(osg::NullFC);
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(id) == osg::NullFC);
}

void tst_kavoScenegraph::theRootIsReferenced()
{
    const osg::NodePtr root = kavoTestScene::makeGroup("root");
    const osg::UInt32 id = root.getFieldContainerId();
    kavoScenegraph::setRoot(root);
    QCOMPARE(root.getRefCount(), 1);
    QVERIFY(kavoScenegraph::getRoot() == root);
    kavoScenegraph::setRoot(osg::NullFC);
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(id) == osg::NullFC);
}

void tst_kavoScenegraph::anotherRootDropsTheSelection()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    kavoScenegraph::setSelectedNode(node);
    kavoScenegraph::setRoot(kavoTestScene::makeGroup("root"));
    QVERIFY(kavoScenegraph::getSelectedNode() == osg::NullFC);
}

void tst_kavoScenegraph::theSameRootAgainKeepsTheSelection()
{
    const kavoNodePtr root(kavoTestScene::makeGroup("root"));
    kavoScenegraph::setRoot(root);
    kavoScenegraph::setSelectedNode(root);
    kavoScenegraph::setRoot(root);
    QVERIFY(kavoScenegraph::getSelectedNode() == root);
}

void tst_kavoScenegraph::aNodeIsCalledByItsDisplayName()
{
    const kavoNodePtr nameless(kavoTestScene::makeGroup(nullptr));
    QCOMPARE(kavoScenegraph::getNodeName(nameless), "Group");
    QVERIFY(!kavoScenegraph::getNodeName(osg::NullFC));
}

KAVO_TEST_MAIN(tst_kavoScenegraph)
#include "tst_kavoscenegraph.moc"
