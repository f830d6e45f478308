#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

#include <memory>

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
    void chainsOfMaterialsAreShared();
    void chainsOfMaterialsAreDrawnWithTheirLast();

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

template <class MaterialT> MaterialPtr makeMaterialOf(const MaterialPtr &part)
{
    const auto material = MaterialT::create();
    material->getMaterials().push_back(part);
    endEditCP(material, MaterialT::MaterialsFieldMask);
    return material;
}

MaterialRefPtr makeChain(const MaterialPtr &last, int links)
{
    MaterialRefPtr first(last);
    for (int link = 1; link < links; ++link) {
        first = link % 2 ? makeMaterialOf<SwitchMaterial>(first.get())
                         : makeMaterialOf<MultiPassMaterial>(first.get());
    }
    return first;
}

MaterialGroupPtr addMaterialGroup(const NodePtr &parent, const MaterialPtr &material)
{
    const MaterialGroupPtr group = MaterialGroup::create();
    group->setMaterial(material);
    parent->addChild(makeNodeFor(group));
    return group;
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
    const MaterialPtr last = SimpleMaterial::create();
    const UInt32 lastId = last.getFieldContainerId();
    makeChain(last, 3 * depth);
    QVERIFY(FieldContainerFactory::the()->getContainer(lastId) == NullFC);
}

// Both chains end alike, so that each pair of links is equal once those behind it are one.
void tst_DeepTrees::chainsOfMaterialsAreShared()
{
    NodePtr root = makeCoredNode<Group>();
    const NodeRefPtr held(root);
    const MaterialGroupPtr first
        = addMaterialGroup(root, makeChain(SimpleMaterial::create(), depth).get());
    const MaterialGroupPtr second
        = addMaterialGroup(root, makeChain(SimpleMaterial::create(), depth).get());
    const std::unique_ptr<GraphOp> share(GraphOpFactory::the().create("SharePtr"));
    share->setParams("includes=Material");
    QVERIFY(share->traverse(root));
    QVERIFY(first->getMaterial() == second->getMaterial());
}

void tst_DeepTrees::chainsOfMaterialsAreDrawnWithTheirLast()
{
    const SimpleMaterialPtr last = SimpleMaterial::create();
    const MaterialRefPtr first = makeChain(last, 3 * depth);
    QVERIFY(first.get()->getState() == last->getState());
    QVERIFY(!first.get()->isTransparent());
    last->setTransparency(0.5f);
    QVERIFY(first.get()->isTransparent());
}

QTEST_APPLESS_MAIN(tst_DeepTrees)
#include "tst_deeptrees.moc"
