#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

using namespace osg;

/// Who keeps containers alive.
class tst_References : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void aNewContainerHasNoReference();
    void oneSubRefDestroysAFreshContainer();
    void theLastSubRefNullsTheHandle();
    void setRefdMovesTheReference();
    void setRefdToTheSameDoesNothing();
    void clearRefDropsTheReference();
    void reReferencingDoesNotLoseAContainerHeldOnlyByTheOld();
    void refPtrHoldsAReference();
    void aCoredNodeHasBoth();
    void theAddRefOfAnyHandleDropsAReference();
};

namespace {

bool lives(UInt32 id)
{
    return FieldContainerFactory::the()->getContainer(id) != NullFC;
}

} // namespace

void tst_References::aNewContainerHasNoReference()
{
    const NodePtr node = Node::create();
    QCOMPARE(node.getRefCount(), 0);
    subRefCP(node);
}

void tst_References::oneSubRefDestroysAFreshContainer()
{
    const NodePtr node = Node::create();
    const UInt32 id = node.getFieldContainerId();
    QVERIFY(lives(id));
    subRefCP(node);
    QVERIFY(!lives(id));
}

void tst_References::theLastSubRefNullsTheHandle()
{
    const NodePtr node = Node::create();
    addRefCP(node);
    addRefCP(node);
    subRefCP(node);
    QVERIFY(node != NullFC);
    subRefCP(node);
    QVERIFY(node == NullFC);
}

void tst_References::setRefdMovesTheReference()
{
    const NodeRefPtr first(Node::create());
    const NodeRefPtr second(Node::create());
    NodePtr handle;
    setRefdCP(handle, first.get());
    QCOMPARE(first.get().getRefCount(), 2);
    setRefdCP(handle, second.get());
    QCOMPARE(first.get().getRefCount(), 1);
    QCOMPARE(second.get().getRefCount(), 2);
    clearRefCP(handle);
}

void tst_References::setRefdToTheSameDoesNothing()
{
    const NodeRefPtr node(Node::create());
    NodePtr handle = node.get();
    setRefdCP(handle, node.get());
    QCOMPARE(handle.getRefCount(), 1);
}

void tst_References::clearRefDropsTheReference()
{
    NodePtr node = Node::create();
    const UInt32 id = node.getFieldContainerId();
    addRefCP(node);
    clearRefCP(node);
    QVERIFY(node == NullFC);
    QVERIFY(!lives(id));
}

void tst_References::reReferencingDoesNotLoseAContainerHeldOnlyByTheOld()
{
    NodePtr parent = Node::create();
    addRefCP(parent);
    const NodePtr child = Node::create();
    parent->addChild(child);
    setRefdCP(parent, child);
    QVERIFY(parent == child);
    QCOMPARE(child.getRefCount(), 1);
    clearRefCP(parent);
}

void tst_References::refPtrHoldsAReference()
{
    const NodePtr node = Node::create();
    const UInt32 id = node.getFieldContainerId();
    {
        NodeRefPtr first(node);
        const NodeRefPtr second = first;
        QCOMPARE(node.getRefCount(), 2);
        first = NullFC;
        QVERIFY(first == NullFC);
        QVERIFY(second == node);
    }
    QVERIFY(!lives(id));
}

void tst_References::aCoredNodeHasBoth()
{
    const GroupNodePtr group = GroupNodePtr::create();
    QVERIFY(group.node()->getCore() == group.core());
    QVERIFY(CoredNodePtr<Transform>(group.node()) == NullFC);
    QCOMPARE(group.node().getRefCount(), 1);
}

void tst_References::theAddRefOfAnyHandleDropsAReference()
{
    const GroupRefPtr group(Group::create());
    addRefCP(group.get());
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    addRef(group.get());
    QT_WARNING_POP
    QCOMPARE(group.get().getRefCount(), 1);
}

QTEST_APPLESS_MAIN(tst_References)
#include "tst_references.moc"
