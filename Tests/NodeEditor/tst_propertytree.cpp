#include "OSGFieldSampler.h"
#include "OSGParentLink.h"
#include "kavoTreeRows.h"

#include <OSGAnimNodeBase.h>
#include <OSGTransformVariantList.h>
#include <kavoNodeUtils.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

using namespace kavoTreeRows;

class TestPropertyTree : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theTitleIsNameTypeAndId();
    void anEmptyNameLeavesTheBlank();
    void fieldsStandInTheOrderOfTheirDescriptions();
    void theFieldsOwnTypeDecides();
    void theTopRowIsOpen();
    void anEmptyAttachmentMapHasNoRow();
    void attachmentsAreNumberedInAClosedList();
    void aNodeShowsItsCoreOpen();
    void aMaterialIsOpenBelowItsCore();
    void otherNestedGroupsAreClosed();
    void anUnsetPointerSaysSo();
    void backLinksShowTheOwnersId_data();
    void backLinksShowTheOwnersId();
    void animatedNodesAreListedUpTo99_data();
    void animatedNodesAreListedUpTo99();
    void listedNodesBearTheirDisplayNames();
    void aNullNodeInTheListShowsNothing();
    void otherNodeListsShowTheirSize();
    void nullChunksAreSkipped();
    void aMaterialWithoutChunksHasNoChunkRow();
    void transformVariantsAreNumberedWithoutGaps();
    void anEmptyVariantListShowsItsSize();
    void numbersAreListedUpTo99_data();
    void numbersAreListedUpTo99();
    void stringsAreListedAtAnySize();
    void otherListsAreSummarised();
    void vectorsAreBeautified();
    void theShallowVariantAddsTheTitleOnly();
    void theShallowVariantNamesNamedNodes();
    void collapsingReturnsTheItem();
    void collapsingAStrangerReturnsNull();

private:
    void show(const osg::FieldContainerPtr &container, const QString &name = QString());

    kavoFCEditorWidget *m_editor = nullptr;
    osg::FieldSamplerPtr m_sampler;
};

namespace {

QString titleOf(const char *name, const osg::FieldContainerPtr &container)
{
    return QStringLiteral("%1 %2 (%3)")
        .arg(name, container->getTypeName())
        .arg(container.getFieldContainerId());
}

}

void TestPropertyTree::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
}

void TestPropertyTree::cleanup()
{
    delete m_editor;
    osg::subRefCP(m_sampler);
}

void TestPropertyTree::show(const osg::FieldContainerPtr &container, const QString &name)
{
    m_editor->setFC(name, container);
}

void TestPropertyTree::theTitleIsNameTypeAndId()
{
    show(m_sampler, "core");
    QCOMPARE(top(*m_editor)->propertyName(), titleOf("core", m_sampler));
}

void TestPropertyTree::anEmptyNameLeavesTheBlank()
{
    show(m_sampler);
    QVERIFY(top(*m_editor)->propertyName().startsWith(" FieldSampler ("));
}

void TestPropertyTree::fieldsStandInTheOrderOfTheirDescriptions()
{
    show(m_sampler);
    QStringList names;
    const osg::FieldContainerType &type = m_sampler->getType();
    for (osg::UInt32 id = 1; id <= type.getNumFieldDescs(); ++id)
        names.append(type.getFieldDescription(id)->getCName());
    names[names.indexOf("quaternion")] = "quaternion (SFQuaternion)";
    QCOMPARE(titles(top(*m_editor)), names);
}

// A node's travMask is described as a bool and is a number.
void TestPropertyTree::theFieldsOwnTypeDecides()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    show(osg::NodePtr(node));
    QCOMPARE(row(*m_editor, "travMask")->toolTip(), QString("SFUInt32"));
    QCOMPARE(text(*m_editor, "travMask"), QString("-1"));
}

void TestPropertyTree::theTopRowIsOpen()
{
    show(m_sampler);
    QVERIFY(isOpen(*m_editor, top(*m_editor)));
}

void TestPropertyTree::anEmptyAttachmentMapHasNoRow()
{
    const kavoNodePtr node(kavoTestScene::makeGroup(nullptr));
    show(osg::NodePtr(node));
    QVERIFY(!titles(top(*m_editor)).join('\n').contains("attachments"));
}

void TestPropertyTree::attachmentsAreNumberedInAClosedList()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    osg::NodePtr(node)->addAttachment(osg::FieldSampler::create());
    show(osg::NodePtr(node));
    QtProperty *list = row(*m_editor, "attachments (AttachmentMap)");
    QVERIFY(list);
    QVERIFY(!isOpen(*m_editor, list));
    QCOMPARE(list->subProperties().size(), 2);
    for (int k = 0; k < 2; ++k) {
        QtProperty *attachment = list->subProperties().at(k);
        QVERIFY(attachment->propertyName().startsWith(QString::number(k) + ' '));
        QVERIFY(!isOpen(*m_editor, attachment));
    }
}

void TestPropertyTree::aNodeShowsItsCoreOpen()
{
    const kavoNodePtr node(kavoTestScene::makeNode("Root", osg::Transform::create()));
    show(osg::NodePtr(node));
    QtProperty *core = row(*m_editor, titleOf("core", osg::NodePtr(node)->getCore()));
    QVERIFY(core);
    QVERIFY(isOpen(*m_editor, core));
    QVERIFY(child(core, "matrix"));
}

void TestPropertyTree::aMaterialIsOpenBelowItsCore()
{
    const osg::MaterialPtr material = kavoTestScene::makeMaterial();
    const kavoNodePtr node(kavoTestScene::makeGeometry("Tyre", material));
    show(osg::NodePtr(node));
    QtProperty *core = row(*m_editor, titleOf("core", osg::NodePtr(node)->getCore()));
    QtProperty *group = child(core, titleOf("material", material));
    QVERIFY(group);
    QVERIFY(isOpen(*m_editor, group));
}

void TestPropertyTree::otherNestedGroupsAreClosed()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Other"));
    m_sampler->other.setValue(node);
    show(m_sampler);
    QtProperty *other = row(*m_editor, titleOf("other", osg::NodePtr(node)));
    QVERIFY(other);
    QVERIFY(!isOpen(*m_editor, other));
    QVERIFY(isOpen(*m_editor, child(other, titleOf("core", osg::NodePtr(node)->getCore()))));
    m_sampler->other.setValue(osg::NullFC);
}

void TestPropertyTree::anUnsetPointerSaysSo()
{
    show(m_sampler);
    QCOMPARE(text(*m_editor, "other"), QString("<unset>"));
    QCOMPARE(text(*m_editor, "parent"), QString("<unset>"));
}

void TestPropertyTree::backLinksShowTheOwnersId_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("isSampled");
    for (const char *name : { "parent", "childs", "associated" })
        QTest::newRow(name) << name << true;
    QTest::newRow("parents") << "parents" << false;
}

void TestPropertyTree::backLinksShowTheOwnersId()
{
    QFETCH(QString, field);
    QFETCH(bool, isSampled);
    const kavoNodePtr node(kavoTestScene::makeGroup("Owner"));
    const osg::ParentLinkPtr single = osg::ParentLink::create();
    osg::addRefCP(single);
    single->parents.setValue(node);
    for (osg::SFNodePtr *link : { &m_sampler->parent, &m_sampler->childs, &m_sampler->associated })
        link->setValue(node);
    show(isSampled ? osg::FieldContainerPtr(m_sampler) : osg::FieldContainerPtr(single));
    QCOMPARE(text(*m_editor, field), QString::number(osg::NodePtr(node).getFieldContainerId()));
    QVERIFY(row(*m_editor, field)->subProperties().isEmpty());
    osg::subRefCP(single);
}

void TestPropertyTree::animatedNodesAreListedUpTo99_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shownText");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("99") << 99 << QString();
    QTest::newRow("100") << 100 << QString("<size = 100>");
}

void TestPropertyTree::animatedNodesAreListedUpTo99()
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

void TestPropertyTree::listedNodesBearTheirDisplayNames()
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

void TestPropertyTree::aNullNodeInTheListShowsNothing()
{
    const osg::AnimNodeBasePtr animation = osg::AnimNodeBase::create();
    osg::addRefCP(animation);
    animation->getNodes().push_back(osg::NullFC);
    show(animation);
    QVERIFY(row(*m_editor, "nodes")->subProperties().isEmpty());
    osg::subRefCP(animation);
}

void TestPropertyTree::otherNodeListsShowTheirSize()
{
    const kavoNodePtr root(kavoTestScene::makeGroup("Root"));
    for (const char *name : { "a", "b", "c" })
        kavoTestScene::makeGroup(name, root);
    show(osg::NodePtr(root));
    QCOMPARE(text(*m_editor, "children"), QString("<size = 3>"));
    QVERIFY(row(*m_editor, "children")->subProperties().isEmpty());
}

void TestPropertyTree::nullChunksAreSkipped()
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

// Deliberate: not even the size is shown.
void TestPropertyTree::aMaterialWithoutChunksHasNoChunkRow()
{
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    osg::addRefCP(material);
    show(material);
    QVERIFY(row(*m_editor, "slots"));
    QVERIFY(!row(*m_editor, "chunks"));
    osg::subRefCP(material);
}

void TestPropertyTree::transformVariantsAreNumberedWithoutGaps()
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

void TestPropertyTree::anEmptyVariantListShowsItsSize()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    osg::addRefCP(list);
    show(list);
    QCOMPARE(text(*m_editor, "variants"), QString("<size = 0>"));
    osg::subRefCP(list);
}

void TestPropertyTree::numbersAreListedUpTo99_data()
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

void TestPropertyTree::numbersAreListedUpTo99()
{
    QFETCH(int, count);
    m_sampler->reals.resize(count, 0.5f);
    m_sampler->ints.resize(count, 7);
    show(m_sampler);
    QTEST(text(*m_editor, "reals"), "reals");
    QTEST(text(*m_editor, "ints"), "ints");
}

void TestPropertyTree::stringsAreListedAtAnySize()
{
    m_sampler->texts.resize(200, "ä");
    show(m_sampler);
    QCOMPARE(text(*m_editor, "texts").count("\"ä\""), 200);
}

void TestPropertyTree::otherListsAreSummarised()
{
    m_sampler->vectors.resize(2);
    show(m_sampler);
    QCOMPARE(text(*m_editor, "vectors"), QString("<type=Vec3f> <size = 2>"));
}

void TestPropertyTree::vectorsAreBeautified()
{
    m_sampler->vector.setValue(osg::Vec3f(1, 2.5f, 1e-7f));
    show(m_sampler);
    QCOMPARE(text(*m_editor, "vector"), QString("1, 2.5, 1e-07"));
}

void TestPropertyTree::theShallowVariantAddsTheTitleOnly()
{
    m_editor->setFCnr(nullptr, m_sampler, "it", false);
    QCOMPARE(top(*m_editor)->propertyName(), titleOf("it", m_sampler));
    QVERIFY(top(*m_editor)->subProperties().isEmpty());
    m_editor->setFCnr(top(*m_editor), m_sampler, "below", false);
    m_editor->setFCnr(top(*m_editor), m_sampler, "open", true);
    QVERIFY(!isOpen(*m_editor, row(*m_editor, titleOf("below", m_sampler))));
    QVERIFY(isOpen(*m_editor, row(*m_editor, titleOf("open", m_sampler))));
    m_editor->setFCnr(nullptr, osg::NullFC, "null", false);
    QCOMPARE(m_editor->properties().size(), 1);
}

void TestPropertyTree::theShallowVariantNamesNamedNodes()
{
    const kavoNodePtr named(kavoTestScene::makeGroup("Root"));
    const kavoNodePtr nameless(kavoTestScene::makeGroup(nullptr));
    m_editor->setFCnr(nullptr, osg::NodePtr(named), "a", false);
    m_editor->setFCnr(nullptr, osg::NodePtr(nameless), "b", false);
    QCOMPARE(m_editor->properties().at(0)->propertyName(),
        titleOf("a", osg::NodePtr(named)) + " name:Root");
    QCOMPARE(m_editor->properties().at(1)->propertyName(), titleOf("b", osg::NodePtr(nameless)));
}

void TestPropertyTree::collapsingReturnsTheItem()
{
    show(m_sampler);
    QtBrowserItem *item = m_editor->collapseProperty(top(*m_editor));
    QVERIFY(item);
    QCOMPARE(item->property(), top(*m_editor));
    QVERIFY(!isOpen(*m_editor, top(*m_editor)));
}

void TestPropertyTree::collapsingAStrangerReturnsNull()
{
    QtVariantPropertyManager manager;
    QCOMPARE(m_editor->collapseProperty(manager.addProperty(QVariant::Int)), nullptr);
}

KAVO_TEST_MAIN(TestPropertyTree)
#include "tst_propertytree.moc"
