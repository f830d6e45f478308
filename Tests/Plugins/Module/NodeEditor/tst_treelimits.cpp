#include "kavoTreeRows.h"

#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGTexGenChunk.h>

#include <QtTest>

#include <algorithm>

using namespace kavoTreeRows;

namespace {

// Each light has the next node as its beacon.
std::vector<kavoNodePtr> lightsBehindLights(int count)
{
    std::vector<kavoNodePtr> nodes;
    for (int i = 0; i < count; ++i) {
        const osg::DirectionalLightPtr light = osg::DirectionalLight::create();
        light->setBeacon(nodes.empty() ? osg::NodePtr() : osg::NodePtr(nodes.back()));
        nodes.emplace_back(kavoTestScene::makeNode(nullptr, light));
    }
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

// The row of the node at the end of the chain, null if the chain breaks off before.
const QtProperty *lastRow(const kavoFCEditorWidget &editor, const std::vector<kavoNodePtr> &chain)
{
    const QtProperty *row = top(editor);
    for (auto node = chain.begin(); row && node + 1 != chain.end(); ++node) {
        const QtProperty *core = child(row, titleOf("core", (*node)->getCore()));
        row = core ? child(core, titleOf("beacon", osg::NodePtr(*(node + 1)))) : nullptr;
    }
    return row;
}

}

// How far the tree follows containers that lead to one another.
class TestTreeLimits : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_editor = std::make_unique<kavoFCEditorWidget>(nullptr, nullptr); }
    void cleanup() { m_editor.reset(); }
    void pointersAreFollowedManyContainersDeep();
    void whatLiesTooDeepShowsItsTitleAlone();
    void aContainerInsideItselfShowsItsTitleAlone();
    void aContainerBesideItselfShowsItsFieldsTwice();
    void aTreeOfManyWaysToTheSameContainersEnds();

private:
    void show(const osg::FieldContainerPtr &container) { m_editor->setFC(QString(), container); }
    int filledGroups(const QString &title) const;

    std::unique_ptr<kavoFCEditorWidget> m_editor;
};

// How many groups of that title directly below the top row have rows.
int TestTreeLimits::filledGroups(const QString &title) const
{
    const QList<QtProperty *> groups = top(*m_editor)->subProperties();
    return int(std::count_if(groups.begin(), groups.end(), [&](const QtProperty *group) {
        return group->propertyName() == title && !group->subProperties().isEmpty();
    }));
}

void TestTreeLimits::pointersAreFollowedManyContainersDeep()
{
    const std::vector<kavoNodePtr> chain = lightsBehindLights(kavoFCEditorWidget::maxDepth / 2);
    show(osg::NodePtr(chain.front()));
    const QtProperty *last = lastRow(*m_editor, chain);
    QVERIFY(last);
    QVERIFY(child(last, "travMask"));
}

// However deep the scene is, the stack is not.
void TestTreeLimits::whatLiesTooDeepShowsItsTitleAlone()
{
    const std::vector<kavoNodePtr> chain = lightsBehindLights(kavoFCEditorWidget::maxDepth / 2 + 1);
    show(osg::NodePtr(chain.front()));
    const QtProperty *last = lastRow(*m_editor, chain);
    QVERIFY(last);
    QVERIFY(last->subProperties().isEmpty());
}

// A light is often its own beacon. Only links to owners are cut off by name.
void TestTreeLimits::aContainerInsideItselfShowsItsTitleAlone()
{
    const std::vector<kavoNodePtr> lights = lightsBehindLights(1);
    const osg::NodePtr node(lights.front());
    osg::LightPtr::dcast(node->getCore())->setBeacon(node);
    show(node);
    const QtProperty *beacon
        = child(row(*m_editor, titleOf("core", node->getCore())), titleOf("beacon", node));
    QVERIFY(beacon);
    QVERIFY(beacon->subProperties().isEmpty());
    osg::LightPtr::dcast(node->getCore())->setBeacon(osg::NullFC);
}

void TestTreeLimits::aContainerBesideItselfShowsItsFieldsTwice()
{
    const osg::ChunkMaterialPtr material = kavoTestScene::makeMaterial();
    const kavoNodePtr node(kavoTestScene::makeGeometry("Tyre", material));
    const osg::StateChunkPtr chunk = (*material->getMFChunks())[0];
    material->addChunk(chunk);
    show(material);
    QCOMPARE(filledGroups(titleOf("", chunk)), 2);
}

// Each chunk leads to the next node in four ways.
void TestTreeLimits::aTreeOfManyWaysToTheSameContainersEnds()
{
    std::vector<kavoNodePtr> nodes; // beacons are not held
    kavoNodePtr node(kavoTestScene::makeGroup("Last"));
    for (int i = 0; i < 10; ++i) {
        const osg::TexGenChunkPtr chunk = osg::TexGenChunk::create();
        chunk->setSBeacon(node);
        chunk->setTBeacon(node);
        chunk->setRBeacon(node);
        chunk->setQBeacon(node);
        const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
        material->addChunk(chunk);
        nodes.push_back(node);
        node = kavoNodePtr(kavoTestScene::makeGeometry(nullptr, material));
    }
    show(osg::NodePtr(node));
    const int rows = all(*m_editor).size();
    QVERIFY(rows > int(kavoFCEditorWidget::maxRows));
    QVERIFY(rows < int(kavoFCEditorWidget::maxRows) * 2);
}

KAVO_TEST_MAIN(TestTreeLimits)
#include "tst_treelimits.moc"
