#include <kavoNodePtr.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <QTest>

#include <utility>
#include <vector>

class tst_kavoNodePtr : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyHandleEqualsNullFC();
    void itHoldsAReferenceWhileItLives();
    void copiesCountAndMovesDoNot();
    void assignmentReleasesThePreviousNode();
    void assigningToItselfKeepsTheNode();
    void droppingTheOnlyReferenceDestroysTheNode();
    void itConvertsToTheNode();
    void handlesOfOneNodeAreEqual();
    void vectorsMayHoldNullHandles();
};

void tst_kavoNodePtr::anEmptyHandleEqualsNullFC()
{
    QVERIFY(kavoNodePtr() == osg::NullFC);
    QVERIFY(kavoNodePtr(osg::NullFC) == osg::NullFC);
    QVERIFY(kavoNodePtr(osg::NodePtr()) == osg::NullFC);
    QVERIFY(kavoNodePtr(kavoTestScene::makeGroup("a")) != osg::NullFC);
}

void tst_kavoNodePtr::itHoldsAReferenceWhileItLives()
{
    const osg::NodePtr node = kavoTestScene::makeGroup("a");
    const kavoNodePtr outer(node);
    {
        const kavoNodePtr inner(node);
        QCOMPARE(node.getRefCount(), 2);
    }
    QCOMPARE(node.getRefCount(), 1);
}

void tst_kavoNodePtr::copiesCountAndMovesDoNot()
{
    kavoNodePtr a(kavoTestScene::makeGroup("a"));
    const osg::NodePtr node = a;
    const kavoNodePtr b = a;
    QCOMPARE(node.getRefCount(), 2);
    const kavoNodePtr c = std::move(a);
    QCOMPARE(node.getRefCount(), 2);
    QVERIFY(a == osg::NullFC);
}

void tst_kavoNodePtr::assignmentReleasesThePreviousNode()
{
    kavoNodePtr a(kavoTestScene::makeGroup("a"));
    const kavoNodePtr keeper = a;
    const osg::NodePtr node = a;
    a = kavoNodePtr(kavoTestScene::makeGroup("b"));
    QCOMPARE(node.getRefCount(), 1);
    a = osg::NullFC;
    QVERIFY(a == osg::NullFC);
}

void tst_kavoNodePtr::assigningToItselfKeepsTheNode()
{
    kavoNodePtr a(kavoTestScene::makeGroup("a"));
    const kavoNodePtr &same = a;
    a = same;
    QCOMPARE(osg::NodePtr(a).getRefCount(), 1);
}

void tst_kavoNodePtr::droppingTheOnlyReferenceDestroysTheNode()
{
    const osg::NodePtr node = kavoTestScene::makeGroup("a");
    const osg::UInt32 id = node.getFieldContainerId();
    kavoNodePtr { node };
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(id) == osg::NullFC);
}

void tst_kavoNodePtr::itConvertsToTheNode()
{
    const osg::NodePtr node = kavoTestScene::makeGroup("a");
    const kavoNodePtr handle(node);
    QVERIFY(osg::NodePtr(handle) == node);
    QCOMPARE(handle->getNChildren(), 0u);
}

void tst_kavoNodePtr::handlesOfOneNodeAreEqual()
{
    const kavoNodePtr a(kavoTestScene::makeGroup("a")), b(kavoTestScene::makeGroup("b"));
    QVERIFY(a == kavoNodePtr(a));
    QVERIFY(a != b);
}

void tst_kavoNodePtr::vectorsMayHoldNullHandles()
{
    const std::vector<kavoNodePtr> handles(3);
    QVERIFY(handles[2] == osg::NullFC);
}

KAVO_TEST_MAIN(tst_kavoNodePtr)
#include "tst_kavonodeptr.moc"
