#include "kavoTreeRows.h"

#include <OSGAnimNodeBase.h>
#include <kavoConsoleCapture.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGTexGenChunk.h>

#include <QtTest>

#include <algorithm>

using namespace kavoTreeRows;

namespace {

// Returns nodes whose lights have the next node as beacon.
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

// Returns the row of the last node in the chain, null if a row is missing.
const QtProperty *lastRow(const kavoFCEditorWidget &editor, const std::vector<kavoNodePtr> &chain)
{
    const QtProperty *row = top(editor);
    for (auto node = chain.begin(); row && node + 1 != chain.end(); ++node) {
        const QtProperty *core = child(row, titleOf("core", (*node)->getCore()));
        row = core ? child(core, titleOf("beacon", osg::NodePtr(*(node + 1)))) : nullptr;
    }
    return row;
}

// Returns nodes that refer to the next one in four ways, by a chunk of their material. The first
// node has more rows than a tree may have.
std::vector<kavoNodePtr> manyWaysToTheSameNodes()
{
    std::vector<kavoNodePtr> nodes { kavoTestScene::makeGroup("Last") };
    for (int i = 0; i < 10; ++i) {
        const osg::NodePtr next(nodes.back());
        const osg::TexGenChunkPtr chunk = osg::TexGenChunk::create();
        chunk->setSBeacon(next);
        chunk->setTBeacon(next);
        chunk->setRBeacon(next);
        chunk->setQBeacon(next);
        const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
        material->addChunk(chunk);
        nodes.emplace_back(kavoTestScene::makeGeometry(nullptr, material));
    }
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

void addList(const osg::AttachmentContainerPtr &container, const osg::NodePtr &node)
{
    const osg::AnimNodeBasePtr list = osg::AnimNodeBase::create();
    list->getNodes().push_back(node);
    container->addAttachment(list);
}

// Returns the groups that say that the tree ends.
QList<QtProperty *> endings(const kavoFCEditorWidget &editor)
{
    QList<QtProperty *> rows = all(editor);
    const auto isOther = [](const QtProperty *row) {
        return !row->propertyName().endsWith(") - not opened: the tree ends at 50000 rows");
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isOther), rows.end());
    return rows;
}

} // namespace

// Limits of the tree for containers that refer to one another.
class tst_TreeLimits : public QObject
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
    void eachTreeThatEndsSaysSoOnce();
    void aContainerInsideItselfDoesNotEndTheTree();
    void listsLeaveRowsToCoreAndMaterial();
    void listsKeepTheirPlace();

private:
    void show(const osg::FieldContainerPtr &container) { m_editor->setFC(QString(), container); }
    int filledGroups(const QString &title) const;

    std::unique_ptr<kavoFCEditorWidget> m_editor;
};

// Counts the groups with that title directly below the top row that have rows.
int tst_TreeLimits::filledGroups(const QString &title) const
{
    const QList<QtProperty *> groups = top(*m_editor)->subProperties();
    return int(std::count_if(groups.begin(), groups.end(), [&](const QtProperty *group) {
        return group->propertyName() == title && !group->subProperties().isEmpty();
    }));
}

void tst_TreeLimits::pointersAreFollowedManyContainersDeep()
{
    const std::vector<kavoNodePtr> chain = lightsBehindLights(kavoFCEditorWidget::maxDepth / 2);
    show(osg::NodePtr(chain.front()));
    const QtProperty *last = lastRow(*m_editor, chain);
    QVERIFY(last);
    QVERIFY(child(last, "travMask"));
}

// A deep scene must not exhaust the stack.
void tst_TreeLimits::whatLiesTooDeepShowsItsTitleAlone()
{
    const std::vector<kavoNodePtr> chain = lightsBehindLights(kavoFCEditorWidget::maxDepth / 2 + 1);
    show(osg::NodePtr(chain.front()));
    const QtProperty *last = lastRow(*m_editor, chain);
    QVERIFY(last);
    QVERIFY(last->subProperties().isEmpty());
}

// A light is often its own beacon. Only pointers to owners are recognised by their name.
void tst_TreeLimits::aContainerInsideItselfShowsItsTitleAlone()
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

void tst_TreeLimits::aContainerBesideItselfShowsItsFieldsTwice()
{
    const osg::ChunkMaterialPtr material = kavoTestScene::makeMaterial();
    const kavoNodePtr node(kavoTestScene::makeGeometry("Tyre", material));
    const osg::StateChunkPtr chunk = (*material->getMFChunks())[0];
    material->addChunk(chunk);
    show(material);
    QCOMPARE(filledGroups(titleOf("", chunk)), 2);
}

void tst_TreeLimits::aTreeOfManyWaysToTheSameContainersEnds()
{
    const std::vector<kavoNodePtr> nodes = manyWaysToTheSameNodes();
    show(osg::NodePtr(nodes.front()));
    const int rows = all(*m_editor).size();
    QVERIFY(rows > int(kavoFCEditorWidget::maxRows));
    QVERIFY(rows < int(kavoFCEditorWidget::maxRows) * 2);
}

void tst_TreeLimits::eachTreeThatEndsSaysSoOnce()
{
    const std::vector<kavoNodePtr> nodes = manyWaysToTheSameNodes();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    for (int timesShown = 1; timesShown <= 2; ++timesShown) {
        show(osg::NodePtr(nodes.front()));
        QCOMPARE(endings(*m_editor).size(), 1);
        QVERIFY(endings(*m_editor).first()->subProperties().isEmpty());
        QCOMPARE(errors.text().count("no more containers are opened"), timesShown);
    }
    show(osg::NodePtr(nodes.back()));
    QVERIFY(endings(*m_editor).isEmpty());
}

void tst_TreeLimits::aContainerInsideItselfDoesNotEndTheTree()
{
    const std::vector<kavoNodePtr> lights = lightsBehindLights(1);
    const osg::NodePtr node(lights.front());
    osg::LightPtr::dcast(node->getCore())->setBeacon(node);
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    show(node);
    QVERIFY(endings(*m_editor).isEmpty());
    QCOMPARE(errors.text(), QByteArray());
    osg::LightPtr::dcast(node->getCore())->setBeacon(osg::NullFC);
}

// The list of the node stands above its core, the list of the core above its material.
void tst_TreeLimits::listsLeaveRowsToCoreAndMaterial()
{
    const std::vector<kavoNodePtr> nodes = manyWaysToTheSameNodes();
    const osg::ChunkMaterialPtr material = kavoTestScene::makeMaterial();
    const kavoNodePtr node(kavoTestScene::makeGeometry("Tyre", material));
    const osg::NodeCorePtr core = osg::NodePtr(node)->getCore();
    addList(osg::NodePtr(node), nodes.front());
    addList(core, nodes.front());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    show(osg::NodePtr(node));
    QCOMPARE(endings(*m_editor).size(), 1);
    const QtProperty *coreRow = row(*m_editor, titleOf("core", core));
    QVERIFY(child(coreRow, "positions"));
    const QtProperty *materialRow = child(coreRow, titleOf("material", material));
    QVERIFY(child(materialRow, "sortKey"));
    for (const osg::StateChunkPtr &chunk : *material->getMFChunks())
        QVERIFY(!child(materialRow, titleOf("", chunk))->subProperties().isEmpty());
}

void tst_TreeLimits::listsKeepTheirPlace()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    addList(osg::NodePtr(node), osg::NodePtr(node));
    show(osg::NodePtr(node));
    QCOMPARE(titles(top(*m_editor)),
        QStringList({ "attachments (AttachmentMap)", "volume", "travMask", "parent", "children",
            titleOf("core", osg::NodePtr(node)->getCore()) }));
}

KAVO_TEST_MAIN(tst_TreeLimits)
#include "tst_treelimits.moc"
