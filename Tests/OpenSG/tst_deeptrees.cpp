#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

using namespace osg;

/// Trees of more levels than calls fit on the stack, and chains of as many links.
class tst_DeepTrees : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theyAreTraversed();
    void theyHaveAVolume();
    void theirNodesHaveAPlaceInTheWorld();
    void theyAreCloned();
    void theyAreDestroyed();
    void chainsOfMaterialsAreDestroyed();

private:
    NodeRefPtr m_root;
    NodePtr m_lowest;
};

namespace {

constexpr int depth = 100000;
int visits = 0;

Action::ResultE count(NodePtr &)
{
    ++visits;
    return Action::Continue;
}

Action::ResultE countLeaving(NodePtr &, Action::ResultE result)
{
    ++visits;
    return result;
}

int countNodes(const NodePtr &root)
{
    visits = 0;
    traverse(root, osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(count));
    return visits;
}

} // namespace

void tst_DeepTrees::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

// One core moves all that is below it.
void tst_DeepTrees::init()
{
    const TransformPtr transform = Transform::create();
    transform->getMatrix().setTranslate(1, 0, 0);
    m_root = NodeRefPtr(makeNodeFor(transform));
    m_lowest = m_root.get();
    for (int level = 1; level < depth; ++level) {
        const NodePtr child = Node::create();
        m_lowest->addChild(child);
        m_lowest = child;
    }
}

void tst_DeepTrees::cleanup()
{
    m_root = NodeRefPtr();
}

void tst_DeepTrees::theyAreTraversed()
{
    visits = 0;
    const Action::ResultE result = traverse(m_root.get(),
        osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(count),
        osgTypedFunctionFunctor2CPtrRef<Action::ResultE, NodePtr, Action::ResultE>(countLeaving));
    QCOMPARE(result, Action::Continue);
    QCOMPARE(visits, 2 * depth);
}

void tst_DeepTrees::theyHaveAVolume()
{
    m_root->updateVolume();
    QVERIFY(m_lowest->getVolume().isValid());
    m_lowest->invalidateVolume();
    QVERIFY(!m_root->getVolume().isValid());
}

void tst_DeepTrees::theirNodesHaveAPlaceInTheWorld()
{
    QCOMPARE(m_lowest->getToWorld()[3][0], 1.f);
}

void tst_DeepTrees::theyAreCloned()
{
    const NodeRefPtr copy(cloneTree(m_root.get()));
    QCOMPARE(countNodes(copy.get()), depth);
}

void tst_DeepTrees::theyAreDestroyed()
{
    const NodeRefPtr kept(m_lowest);
    m_root = NodeRefPtr();
    QVERIFY(kept->getParent() == NullFC);
    QCOMPARE(kept.get().getRefCount(), 1);
}

void tst_DeepTrees::chainsOfMaterialsAreDestroyed()
{
    const SwitchMaterialPtr first = SwitchMaterial::create();
    const UInt32 firstId = first.getFieldContainerId();
    MaterialRefPtr last(first);
    for (int link = 1; link < 3 * depth; ++link) {
        const SwitchMaterialPtr next = SwitchMaterial::create();
        next->getMaterials().push_back(last.get());
        endEditCP(next, SwitchMaterial::MaterialsFieldMask);
        last = next;
    }
    last = NullFC;
    QVERIFY(FieldContainerFactory::the()->getContainer(firstId) == NullFC);
}

QTEST_APPLESS_MAIN(tst_DeepTrees)
#include "tst_deeptrees.moc"
