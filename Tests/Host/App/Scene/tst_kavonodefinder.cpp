#include "Scene/kavoNodeFinder.h"
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <QTest>

class tst_NodeFinder : public QObject
{
    Q_OBJECT

private slots:
    void aNodeIsFoundByName();
    void ofTwoNodesOfANameTheFirstIsFound();
    void aNodeIsFoundById();
    void aNameThatLooksLikeAnIdWins();
    void anIdOutsideTheSceneIsNotFound();
    void anUnknownNameIsNotFound();
    void anEmptySceneHasNoNodes();
};

void tst_NodeFinder::aNodeIsFoundByName()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    QVERIFY(kavoNodeFinder::find(truck, "Tyre") == truck->getChild(0)->getChild(0));
    QVERIFY(kavoNodeFinder::find(truck, "Root") == osg::NodePtr(truck));
}

void tst_NodeFinder::ofTwoNodesOfANameTheFirstIsFound()
{
    const kavoNodePtr root(kavoTestScene::makeGroup("Root"));
    const osg::NodePtr branch = kavoTestScene::makeGroup("Branch", root);
    const osg::NodePtr first = kavoTestScene::makeGroup("Twin", branch);
    kavoTestScene::makeGroup("Twin", root);
    QVERIFY(kavoNodeFinder::find(root, "Twin") == first);
}

void tst_NodeFinder::aNodeIsFoundById()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    const osg::NodePtr wheel = truck->getChild(0);
    QVERIFY(kavoNodeFinder::find(truck, QString::number(wheel.getFieldContainerId())) == wheel);
}

void tst_NodeFinder::aNameThatLooksLikeAnIdWins()
{
    const kavoNodePtr root(kavoTestScene::makeGroup("Root"));
    const QString id = QString::number(osg::NodePtr(root).getFieldContainerId());
    const osg::NodePtr named = kavoTestScene::makeGroup(qUtf8Printable(id), root);
    QVERIFY(kavoNodeFinder::find(root, id) == named);
}

void tst_NodeFinder::anIdOutsideTheSceneIsNotFound()
{
    const kavoNodePtr root(kavoTestScene::makeGroup("Root")), other(kavoTestScene::makeGroup("x"));
    const osg::UInt32 core = root->getCore().getFieldContainerId();
    const osg::UInt32 outside = osg::NodePtr(other).getFieldContainerId();
    QVERIFY(kavoNodeFinder::find(root, QString::number(core)) == osg::NullFC);
    QVERIFY(kavoNodeFinder::find(root, QString::number(outside)) == osg::NullFC);
}

void tst_NodeFinder::anUnknownNameIsNotFound()
{
    QVERIFY(kavoNodeFinder::find(kavoTestScene::makeTruck(), "Sail") == osg::NullFC);
}

void tst_NodeFinder::anEmptySceneHasNoNodes()
{
    QVERIFY(kavoNodeFinder::find(osg::NullFC, "Root") == osg::NullFC);
}

KAVO_TEST_MAIN(tst_NodeFinder)
#include "tst_kavonodefinder.moc"
