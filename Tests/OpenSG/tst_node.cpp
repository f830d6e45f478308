#include "LogCapture.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

using namespace osg;

class tst_Node : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void aCoreKnowsItsNodes();
    void aNewCoreReplacesTheOld();
    void theSameCoreCanBeSetAgain();
    void aNullCoreTakesTheCoreAway();
    void aChildHasOneParent();
    void nullChildrenAreIgnored();
    void aChildMovesWithinItsParent();
    void childrenAreInsertedInOrder();
    void aReplacedChildIsReleased();
    void replacingAStrangerFails();
    void takingAStrangerAwayIsReported();
    void takingTheLastReferenceAwayDestroysTheChild();
    void destructionReleasesCoreAndChildren();
    void anActiveNodeHasAllMaskBits();
    void theMaskReadsAsANumber();
    void theOcclusionMaskIsKept();
    void worldMatricesAreMultipliedFromTheRoot();
    void theVolumeHoldsTheVisibleChildren();
    void theVolumeFollowsTheTransformation();
    void changesInvalidateTheVolumesAbove();
    void aHiddenNodeKeepsItsVolume();
    void aNodeForNoCoreIsNull();
    void aCopyHasNeitherParentNorChildren();
};

namespace {

Pnt3f maximum(const NodePtr &node)
{
    return node->getVolume(true).getMax();
}

bool lives(UInt32 id)
{
    return FieldContainerFactory::the()->getContainer(id) != NullFC;
}

} // namespace

void tst_Node::aCoreKnowsItsNodes()
{
    const GroupPtr core = Group::create();
    const NodeRefPtr first(makeNodeFor(core));
    const NodeRefPtr second(makeNodeFor(core));
    QCOMPARE(core.getRefCount(), 2);
    QCOMPARE(core->getParents().size(), 2u);
    QVERIFY(core->getParents(1) == second.get());
}

void tst_Node::aNewCoreReplacesTheOld()
{
    const RefPtr<GroupPtr> old(Group::create());
    const NodeRefPtr node(makeNodeFor(old.get()));
    node->setCore(Transform::create());
    QCOMPARE(old.get().getRefCount(), 1);
    QVERIFY(old->getParents().empty());
}

void tst_Node::theSameCoreCanBeSetAgain()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    node->setCore(node->getCore());
    QCOMPARE(node->getCore().getRefCount(), 1);
    QCOMPARE(node->getCore()->getParents().size(), 1u);
}

void tst_Node::aNullCoreTakesTheCoreAway()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    const UInt32 id = node->getCore().getFieldContainerId();
    node->setCore(NullFC);
    QVERIFY(node->getCore() == NullFC);
    QVERIFY(!lives(id));
}

void tst_Node::aChildHasOneParent()
{
    const NodeRefPtr first(Node::create());
    const NodeRefPtr second(Node::create());
    const NodePtr child = Node::create();
    first->addChild(child);
    second->addChild(child);
    QVERIFY(child->getParent() == second.get());
    QCOMPARE(first->getNChildren(), 0u);
    QCOMPARE(child.getRefCount(), 1);
}

void tst_Node::nullChildrenAreIgnored()
{
    const NodeRefPtr node(Node::create());
    node->addChild(NullFC);
    node->insertChild(0, NullFC);
    QCOMPARE(node->getNChildren(), 0u);
    QCOMPARE(node->findChild(NullFC), -1);
}

void tst_Node::aChildMovesWithinItsParent()
{
    const NodeRefPtr node(Node::create());
    const NodePtr first = Node::create();
    node->addChild(first);
    node->addChild(Node::create());
    node->addChild(first);
    QCOMPARE(node->getNChildren(), 2u);
    QCOMPARE(node->findChild(first), 1);
    QCOMPARE(first.getRefCount(), 1);
}

void tst_Node::childrenAreInsertedInOrder()
{
    const NodeRefPtr node(Node::create());
    const NodePtr last = Node::create();
    const NodePtr first = Node::create();
    node->addChild(last);
    node->insertChild(0, first);
    node->insertChild(99, Node::create());
    QVERIFY(node->getChild(0) == first && node->getChild(1) == last);
    QCOMPARE(node->getNChildren(), 3u);
}

void tst_Node::aReplacedChildIsReleased()
{
    const NodeRefPtr node(Node::create());
    const NodePtr old = Node::create();
    const UInt32 id = old.getFieldContainerId();
    node->addChild(old);
    const NodePtr replacement = Node::create();
    QVERIFY(node->replaceChildBy(old, replacement));
    QVERIFY(node->getChild(0) == replacement);
    QVERIFY(!lives(id));
}

void tst_Node::replacingAStrangerFails()
{
    const NodeRefPtr node(Node::create());
    const NodeRefPtr stranger(Node::create());
    QVERIFY(!node->replaceChildBy(stranger.get(), stranger.get()));
}

void tst_Node::takingAStrangerAwayIsReported()
{
    const LogCapture log;
    const NodeRefPtr node(Node::create());
    const NodeRefPtr stranger(Node::create());
    node->subChild(stranger.get());
    QVERIFY(log.text.startsWith("WARNING:  "));
    QVERIFY(log.text.endsWith("is not one of my children!\n"));
}

void tst_Node::takingTheLastReferenceAwayDestroysTheChild()
{
    const NodeRefPtr node(Node::create());
    node->addChild(Node::create());
    const UInt32 id = node->getChild(0).getFieldContainerId();
    node->subChild(0u);
    QVERIFY(!lives(id));
}

void tst_Node::destructionReleasesCoreAndChildren()
{
    NodePtr node = makeCoredNode<Group>();
    addRefCP(node);
    const NodeRefPtr child(makeCoredNode<Group>());
    node->addChild(child.get());
    const UInt32 core = node->getCore().getFieldContainerId();
    clearRefCP(node);
    QVERIFY(!lives(core));
    QCOMPARE(child.get().getRefCount(), 1);
    QVERIFY(child->getParent() == NullFC);
}

void tst_Node::anActiveNodeHasAllMaskBits()
{
    const NodeRefPtr node(Node::create());
    QVERIFY(node->getActive());
    node->setTravMask(1);
    QVERIFY(!node->getActive());
    node->setActive(false);
    QCOMPARE(node->getTravMask(), 0u);
    node->setActive(true);
    QCOMPARE(node->getTravMask(), 0xffffffffu);
}

void tst_Node::theOcclusionMaskIsKept()
{
    const NodeRefPtr node(Node::create());
    node->setOcclusionMask(200);
    QCOMPARE(node->getOcclusionMask(), UInt8(200));
}

void tst_Node::theMaskReadsAsANumber()
{
    const NodeRefPtr node(Node::create());
    Field *mask = node->getField("travMask");
    QCOMPARE(mask->getType().getCName(), "SFUInt32");
    mask->pushValueByStr("7");
    QCOMPARE(node->getTravMask(), 7u);
    mask->pushValueByStr("TRUE");
    QCOMPARE(node->getTravMask(), 0u);
}

void tst_Node::worldMatricesAreMultipliedFromTheRoot()
{
    TransformPtr outer;
    TransformPtr inner;
    const NodeRefPtr root(makeCoredNode<Transform>(&outer));
    const NodePtr child = makeCoredNode<Transform>(&inner);
    root->addChild(child);
    outer->getMatrix().setScale(2.f);
    inner->getMatrix().setTranslate(1.f, 0.f, 0.f);
    QCOMPARE(child->getToWorld()[3][0], 2.f);
    QCOMPARE(root->getToWorld()[3][0], 0.f);
}

void tst_Node::theVolumeHoldsTheVisibleChildren()
{
    const NodeRefPtr root(makeCoredNode<Group>());
    root->addChild(makeBox(2.f, 4.f, 6.f, 1, 1, 1));
    const NodePtr hidden = makeBox(20.f, 20.f, 20.f, 1, 1, 1);
    hidden->setActive(false);
    root->addChild(hidden);
    QCOMPARE(maximum(root.get()), Pnt3f(1.f, 2.f, 3.f));
}

void tst_Node::theVolumeFollowsTheTransformation()
{
    TransformPtr transform;
    const NodeRefPtr root(makeCoredNode<Transform>(&transform));
    root->addChild(makeBox(2.f, 2.f, 2.f, 1, 1, 1));
    beginEditCP(transform, Transform::MatrixFieldMask);
    transform->getMatrix().setTranslate(10.f, 0.f, 0.f);
    endEditCP(transform, Transform::MatrixFieldMask);
    QCOMPARE(maximum(root.get()), Pnt3f(11.f, 1.f, 1.f));
    DynamicVolume world;
    root->getChild(0)->getWorldVolume(world);
    QCOMPARE(world.getMax(), Pnt3f(11.f, 1.f, 1.f));
}

void tst_Node::changesInvalidateTheVolumesAbove()
{
    const NodeRefPtr root(makeCoredNode<Group>());
    const NodePtr child = makeCoredNode<Group>();
    root->addChild(child);
    root->updateVolume();
    QVERIFY(root->getVolume().isValid());
    child->addChild(makeBox(2.f, 2.f, 2.f, 1, 1, 1));
    QVERIFY(!root->getVolume().isValid());
    root->updateVolume();
    endEditCP(child, Node::TravMaskFieldMask);
    QVERIFY(!root->getVolume().isValid());
}

void tst_Node::aHiddenNodeKeepsItsVolume()
{
    const NodeRefPtr box(makeBox(2.f, 2.f, 2.f, 1, 1, 1));
    box->setTravMask(0);
    box->updateVolume();
    QVERIFY(!box->getVolume().isValid());
}

void tst_Node::aNodeForNoCoreIsNull()
{
    QVERIFY(makeNodeFor(NullFC) == NullFC);
}

void tst_Node::aCopyHasNeitherParentNorChildren()
{
    const NodeRefPtr root(makeCoredNode<Group>());
    root->addChild(Node::create());
    const FieldContainerPtr any = root->shallowCopy();
    const NodeRefPtr copy(NodePtr::dcast(any));
    QCOMPARE(copy->getNChildren(), 0u);
    QVERIFY(copy->getCore() == root->getCore());
}

QTEST_APPLESS_MAIN(tst_Node)
#include "tst_node.moc"
