#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <QtTest>

#include <algorithm>
#include <stdexcept>
#include <vector>

using namespace osg;

/// Containers that do more than go when their last reference goes.
class tst_Destruction : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void whatWaitsForItsEndMayBeReferencedMeanwhile_data();
    void whatWaitsForItsEndMayBeReferencedMeanwhile();
    void whatWasReferencedForGoodMeanwhileStays();
    void anExceptionEndsNoDestruction();
    void wideTreesOfOneCoreGo();

private:
    static NodePtr makeChain(int length);
};

namespace {

/// Takes a reference to each of its nodes whenever these change.
class WatchingGroup : public Group
{
public:
    typedef FCPtr<GroupPtr, WatchingGroup> Ptr;

    static Ptr make()
    {
        Ptr result;
        newPtr(result);
        return result;
    }

    void changed(BitVector whichField, UInt32 origin) override
    {
        for (UInt32 i = 0; isWatching && i < getParents().size(); ++i) {
            lastWatched = NodeRefPtr(getParents()[i]);
        }
        if (!keepsLast) {
            lastWatched = NullFC;
        }
        Group::changed(whichField, origin);
    }

    bool isWatching = false;
    bool keepsLast = false;
    NodeRefPtr lastWatched;
};

class ThrowingGroup : public Group
{
public:
    typedef FCPtr<GroupPtr, ThrowingGroup> Ptr;

    static Ptr make()
    {
        Ptr result;
        newPtr(result);
        return result;
    }

    ~ThrowingGroup() override { ++ended; }

    static int ended;

protected:
    void onDestroy() override { throw std::runtime_error("no end"); }
};

int ThrowingGroup::ended = 0;

NodePtr lowestOf(NodePtr node)
{
    while (node->getNChildren() > 0) {
        node = node->getChild(0);
    }
    return node;
}

bool hasGone(UInt32 id)
{
    return FieldContainerFactory::the()->getContainer(id) == NullFC;
}

} // namespace

void tst_Destruction::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

// The root, which has a reference.
NodePtr tst_Destruction::makeChain(int length)
{
    NodePtr node = Node::create();
    for (int i = 1; i < length; ++i) {
        const NodePtr parent = Node::create();
        parent->addChild(node);
        node = parent;
    }
    addRefCP(node);
    return node;
}

void tst_Destruction::whatWaitsForItsEndMayBeReferencedMeanwhile_data()
{
    QTest::addColumn<int>("depth");
    for (const int depth : { 1, 62, 63, 64, 65, 130 }) {
        QTest::addRow("%d nodes above it", depth) << depth;
    }
}

void tst_Destruction::whatWaitsForItsEndMayBeReferencedMeanwhile()
{
    QFETCH(int, depth);
    const RefPtr<WatchingGroup::Ptr> core(WatchingGroup::make());
    NodePtr root = makeChain(depth);
    const NodePtr lowest = lowestOf(root);
    lowest->setCore(core.get());
    std::vector<UInt32> leaves;
    for (int i = 0; i < 3; ++i) {
        const NodePtr leaf = makeNodeFor(core.get());
        leaves.push_back(leaf.getFieldContainerId());
        lowest->addChild(leaf);
    }
    core->isWatching = true;
    subRefCP(root);
    QVERIFY(core->getParents().empty());
    QVERIFY(std::all_of(leaves.begin(), leaves.end(), hasGone));
}

void tst_Destruction::whatWasReferencedForGoodMeanwhileStays()
{
    const RefPtr<WatchingGroup::Ptr> core(WatchingGroup::make());
    NodePtr root = makeChain(64);
    const NodePtr lowest = lowestOf(root);
    for (int i = 0; i < 2; ++i) {
        lowest->addChild(makeNodeFor(core.get()));
    }
    core->isWatching = core->keepsLast = true;
    subRefCP(root);
    QVERIFY(core->lastWatched.get() != NullFC);
    QCOMPARE(core->lastWatched.get().getRefCount(), 1);
    QCOMPARE(core->getParents().size(), 1u);
    core->isWatching = core->keepsLast = false;
    core->lastWatched = NullFC;
    QVERIFY(core->getParents().empty());
}

void tst_Destruction::anExceptionEndsNoDestruction()
{
    ThrowingGroup::Ptr group = ThrowingGroup::make();
    const UInt32 id = group.getFieldContainerId();
    const NodePtr node = makeNodeFor(group);
    NodePtr root = makeChain(100);
    lowestOf(root)->addChild(node);
    subRefCP(root);
    QVERIFY(hasGone(id));
    QCOMPARE(ThrowingGroup::ended, 1);
}

// In the order in which cores and attachments look for their parents: in another one this would
// take minutes.
void tst_Destruction::wideTreesOfOneCoreGo()
{
    constexpr int leafCount = 500000;
    const GroupRefPtr core(Group::create());
    NodePtr root = makeChain(1);
    for (int i = 0; i < leafCount; ++i) {
        root->addChild(makeNodeFor(core.get()));
    }
    subRefCP(root);
    QVERIFY(core->getParents().empty());
}

QTEST_APPLESS_MAIN(tst_Destruction)
#include "tst_destruction.moc"
