#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <OSGAnimNodeBase.h>
#include <OSGDerivedContainer.h>
#include <OSGTransformVariantList.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGBlendChunk.h>

#include <QtTest>

using namespace kavoTreeRows;

namespace {

struct DerivedAnimation
{
    typedef osg::AnimNodeBase Base;
    typedef osg::AnimNodeBasePtr BasePtr;
    static constexpr const char *type = "DerivedAnimation";
    static constexpr const char *parent = "AnimNodeBase";
    static constexpr const char *group = "AnimNodeBase";
};

} // namespace

// Rows and groups of multi fields.
class tst_PropertyLists : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void animatedNodesAreListedUpTo99_data();
    void animatedNodesAreListedUpTo99();
    void classesDerivedFromAnimationsListTheirNodes();
    void listedNodesBearTheirDisplayNames();
    void aNullNodeInTheListShowsNothing();
    void otherNodeListsShowTheirSize();
    void nullChunksAreSkipped();
    void chunksAreShownAtAnyNumber();
    void aMaterialWithoutChunksHasNoChunkRow();
    void transformVariantsAreNumberedWithoutGaps();
    void transformVariantsAreListedAtAnyNumber();
    void aListOfNullVariantsIsAnEmptyGroup();
    void anEmptyVariantListShowsItsSize();
    void numbersAreListedUpTo99_data();
    void numbersAreListedUpTo99();
    void stringsAreListedAtAnySize();
    void otherListsAreSummarised();

private:
    void show(const osg::FieldContainerPtr &container);

    kavoFCEditorWidget *m_editor = nullptr;
    osg::FieldSamplerPtr m_sampler;
};

void tst_PropertyLists::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
}

void tst_PropertyLists::cleanup()
{
    delete m_editor;
    osg::subRefCP(m_sampler);
}

void tst_PropertyLists::show(const osg::FieldContainerPtr &container)
{
    m_editor->setFC(QString(), container);
}

void tst_PropertyLists::animatedNodesAreListedUpTo99_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shownText");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("99") << 99 << QString();
    QTest::newRow("100") << 100 << QString("<size = 100>");
}

void tst_PropertyLists::animatedNodesAreListedUpTo99()
{
    QFETCH(int, count);
    QFETCH(QString, shownText);
    const kavoNodePtr node(kavoTestScene::makeGroup("Part"));
    const osg::AnimNodeBasePtr animation = osg::AnimNodeBase::create();
    osg::addRefCP(animation);
    animation->getNodes().resize(count, node);
    show(animation);
    QCOMPARE(text(*m_editor, "nodes"), shownText);
    QCOMPARE(row(*m_editor, "nodes")->subProperties().size(), count % 100);
    QVERIFY(!isOpen(*m_editor, row(*m_editor, "nodes")));
    osg::subRefCP(animation);
}

void tst_PropertyLists::classesDerivedFromAnimationsListTheirNodes()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Part"));
    const auto animation = osg::DerivedContainer<DerivedAnimation>::create();
    osg::addRefCP(animation);
    animation->getNodes().push_back(node);
    show(animation);
    QCOMPARE(titles(row(*m_editor, "nodes")), QStringList(titleOf("Part", osg::NodePtr(node))));
    osg::subRefCP(animation);
}

void tst_PropertyLists::listedNodesBearTheirDisplayNames()
{
    const kavoNodePtr named(kavoTestScene::makeGroup("Part"));
    const kavoNodePtr cored(kavoTestScene::makeGroup(nullptr));
    const kavoNodePtr bare(kavoTestScene::makeNode(nullptr, osg::NullFC));
    const osg::AnimNodeBasePtr animation = osg::AnimNodeBase::create();
    osg::addRefCP(animation);
    for (const kavoNodePtr &node : { named, cored, bare })
        animation->getNodes().push_back(node);
    show(animation);
    QCOMPARE(titles(row(*m_editor, "nodes")),
        QStringList({ titleOf("Part", osg::NodePtr(named)), titleOf("Group", osg::NodePtr(cored)),
            titleOf("", osg::NodePtr(bare)) }));
    osg::subRefCP(animation);
}

void tst_PropertyLists::aNullNodeInTheListShowsNothing()
{
    const osg::AnimNodeBasePtr animation = osg::AnimNodeBase::create();
    osg::addRefCP(animation);
    animation->getNodes().push_back(osg::NullFC);
    show(animation);
    QVERIFY(row(*m_editor, "nodes")->subProperties().isEmpty());
    osg::subRefCP(animation);
}

void tst_PropertyLists::otherNodeListsShowTheirSize()
{
    const kavoNodePtr root(kavoTestScene::makeGroup("Root"));
    for (const char *name : { "a", "b", "c" })
        kavoTestScene::makeGroup(name, root);
    show(osg::NodePtr(root));
    QCOMPARE(text(*m_editor, "children"), QString("<size = 3>"));
    QVERIFY(row(*m_editor, "children")->subProperties().isEmpty());
}

void tst_PropertyLists::nullChunksAreSkipped()
{
    const osg::ChunkMaterialPtr material = kavoTestScene::makeMaterial();
    osg::addRefCP(material);
    osg::MFStateChunkPtr *chunks = material->getMFChunks();
    chunks->insert(chunks->begin() + 1, osg::NullFC);
    show(material);
    for (osg::UInt32 i : { 0u, 2u }) {
        QtProperty *chunk = row(*m_editor, titleOf("", (*chunks)[i]));
        QVERIFY(chunk);
        QVERIFY(isOpen(*m_editor, chunk));
    }
    QVERIFY(!row(*m_editor, "chunks"));
    chunks->erase(chunks->begin() + 1);
    osg::subRefCP(material);
}

void tst_PropertyLists::chunksAreShownAtAnyNumber()
{
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    osg::addRefCP(material);
    for (int i = 0; i < 150; ++i)
        material->addChunk(osg::BlendChunk::create());
    show(material);
    const QStringList shown = titles(top(*m_editor));
    for (const osg::StateChunkPtr &chunk : *material->getMFChunks())
        QVERIFY(shown.contains(titleOf("", chunk)));
    QCOMPARE(shown.filter("BlendChunk").size(), 150);
    osg::subRefCP(material);
}

// Deliberate: the row with the size is missing too.
void tst_PropertyLists::aMaterialWithoutChunksHasNoChunkRow()
{
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    osg::addRefCP(material);
    show(material);
    QVERIFY(row(*m_editor, "slots"));
    QVERIFY(!row(*m_editor, "chunks"));
    osg::subRefCP(material);
}

void tst_PropertyLists::transformVariantsAreNumberedWithoutGaps()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    osg::addRefCP(list);
    const osg::TransformVariantPtr a = osg::TransformVariant::create();
    const osg::TransformVariantPtr b = osg::TransformVariant::create();
    for (const osg::TransformVariantPtr &variant :
        { osg::TransformVariantPtr(), a, osg::TransformVariantPtr(), b })
        list->addVariant(variant);
    show(list);
    QCOMPARE(titles(row(*m_editor, "variants")), QStringList({ titleOf("0", a), titleOf("1", b) }));
    QVERIFY(!isOpen(*m_editor, row(*m_editor, "variants")));
    osg::subRefCP(list);
}

void tst_PropertyLists::transformVariantsAreListedAtAnyNumber()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    osg::addRefCP(list);
    for (int i = 0; i < 150; ++i)
        list->addVariant(osg::TransformVariant::create());
    show(list);
    const QStringList shown = titles(row(*m_editor, "variants"));
    QCOMPARE(shown.size(), 150);
    QCOMPARE(shown.last(), titleOf("149", list->getVariants()[149]));
    osg::subRefCP(list);
}

void tst_PropertyLists::aListOfNullVariantsIsAnEmptyGroup()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    osg::addRefCP(list);
    for (int i = 0; i < 3; ++i)
        list->addVariant(osg::NullFC);
    show(list);
    QCOMPARE(text(*m_editor, "variants"), QString());
    QVERIFY(row(*m_editor, "variants")->subProperties().isEmpty());
    QVERIFY(row(*m_editor, "variants")->toolTip().isEmpty());
    osg::subRefCP(list);
}

void tst_PropertyLists::anEmptyVariantListShowsItsSize()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    osg::addRefCP(list);
    show(list);
    QCOMPARE(text(*m_editor, "variants"), QString("<size = 0>"));
    osg::subRefCP(list);
}

void tst_PropertyLists::numbersAreListedUpTo99_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("reals");
    QTest::addColumn<QString>("ints");
    QTest::newRow("none") << 0 << ""
                          << "";
    QTest::newRow("five") << 5 << "0.5, 0.5, 0.5, 0.5, 0.5"
                          << "7, 7, 7, 7, 7";
    QTest::newRow("99") << 99 << QStringList(QVector<QString>(99, "0.5").toList()).join(", ")
                        << QStringList(QVector<QString>(99, "7").toList()).join(", ");
    QTest::newRow("100") << 100 << "<type=Real32> <size = 100>"
                         << "<type=Int32> <size = 100>";
    QTest::newRow("150") << 150 << "<type=Real32> <size = 150>"
                         << "<type=Int32> <size = 150>";
}

void tst_PropertyLists::numbersAreListedUpTo99()
{
    QFETCH(int, count);
    m_sampler->reals.resize(count, 0.5f);
    m_sampler->ints.resize(count, 7);
    show(m_sampler);
    QTEST(text(*m_editor, "reals"), "reals");
    QTEST(text(*m_editor, "ints"), "ints");
}

void tst_PropertyLists::stringsAreListedAtAnySize()
{
    m_sampler->texts.resize(200, "ä");
    show(m_sampler);
    QCOMPARE(text(*m_editor, "texts").count("\"ä\""), 200);
}

void tst_PropertyLists::otherListsAreSummarised()
{
    m_sampler->vectors.resize(2);
    show(m_sampler);
    QCOMPARE(text(*m_editor, "vectors"), QString("<type=Vec3f> <size = 2>"));
}

KAVO_TEST_MAIN(tst_PropertyLists)
#include "tst_propertylists.moc"
