#include "OSGFieldSampler.h"
#include "OSGParentLink.h"
#include "kavoTreeRows.h"

#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGTransform.h>

#include <QtTest>

using namespace kavoTreeRows;

// Groups and rows of a container and of the containers that it refers to.
class tst_PropertyTree : public QObject
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

void tst_PropertyTree::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
}

void tst_PropertyTree::cleanup()
{
    delete m_editor;
    osg::subRefCP(m_sampler);
}

void tst_PropertyTree::show(const osg::FieldContainerPtr &container, const QString &name)
{
    m_editor->setFC(name, container);
}

void tst_PropertyTree::theTitleIsNameTypeAndId()
{
    show(m_sampler, "core");
    QCOMPARE(top(*m_editor)->propertyName(), titleOf("core", m_sampler));
}

void tst_PropertyTree::anEmptyNameLeavesTheBlank()
{
    show(m_sampler);
    QVERIFY(top(*m_editor)->propertyName().startsWith(" FieldSampler ("));
}

void tst_PropertyTree::fieldsStandInTheOrderOfTheirDescriptions()
{
    show(m_sampler);
    QStringList names;
    const osg::FieldContainerType &type = m_sampler->getType();
    for (osg::UInt32 id = 1; id <= type.getNumFieldDescs(); ++id)
        names.append(type.getFieldDescription(id)->getCName());
    names[names.indexOf("quaternion")] = "quaternion (SFQuaternion)";
    QCOMPARE(titles(top(*m_editor)), names);
}

// The description of a node's travMask says bool, but the field is a number.
void tst_PropertyTree::theFieldsOwnTypeDecides()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    show(osg::NodePtr(node));
    QCOMPARE(row(*m_editor, "travMask")->toolTip(), QString("SFUInt32"));
    QCOMPARE(text(*m_editor, "travMask"), QString("-1"));
}

void tst_PropertyTree::theTopRowIsOpen()
{
    show(m_sampler);
    QVERIFY(isOpen(*m_editor, top(*m_editor)));
}

void tst_PropertyTree::anEmptyAttachmentMapHasNoRow()
{
    const kavoNodePtr node(kavoTestScene::makeGroup(nullptr));
    show(osg::NodePtr(node));
    QVERIFY(!titles(top(*m_editor)).join('\n').contains("attachments"));
}

void tst_PropertyTree::attachmentsAreNumberedInAClosedList()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    osg::NodePtr(node)->addAttachment(osg::FieldSampler::create());
    show(osg::NodePtr(node));
    QtProperty *list = row(*m_editor, "attachments (AttachmentMap)");
    QVERIFY(list);
    QVERIFY(!isOpen(*m_editor, list));
    QStringList inKeyOrder;
    for (const auto &entry : osg::NodePtr(node)->getSFAttachments()->getValue())
        inKeyOrder.append(titleOf(QByteArray::number(inKeyOrder.size()), entry.second));
    QCOMPARE(inKeyOrder.size(), 2);
    QCOMPARE(titles(list), inKeyOrder);
    for (QtProperty *attachment : list->subProperties())
        QVERIFY(!isOpen(*m_editor, attachment));
}

void tst_PropertyTree::aNodeShowsItsCoreOpen()
{
    const kavoNodePtr node(kavoTestScene::makeNode("Root", osg::Transform::create()));
    show(osg::NodePtr(node));
    QtProperty *core = row(*m_editor, titleOf("core", osg::NodePtr(node)->getCore()));
    QVERIFY(core);
    QVERIFY(isOpen(*m_editor, core));
    QVERIFY(child(core, "matrix"));
}

void tst_PropertyTree::aMaterialIsOpenBelowItsCore()
{
    const osg::MaterialPtr material = kavoTestScene::makeMaterial();
    const kavoNodePtr node(kavoTestScene::makeGeometry("Tyre", material));
    show(osg::NodePtr(node));
    QtProperty *core = row(*m_editor, titleOf("core", osg::NodePtr(node)->getCore()));
    QtProperty *group = child(core, titleOf("material", material));
    QVERIFY(group);
    QVERIFY(isOpen(*m_editor, group));
}

void tst_PropertyTree::otherNestedGroupsAreClosed()
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

void tst_PropertyTree::anUnsetPointerSaysSo()
{
    show(m_sampler);
    QCOMPARE(text(*m_editor, "other"), QString("<unset>"));
    QCOMPARE(text(*m_editor, "parent"), QString("<unset>"));
}

void tst_PropertyTree::backLinksShowTheOwnersId_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("isSampled");
    for (const char *name : { "parent", "childs", "associated" })
        QTest::newRow(name) << name << true;
    QTest::newRow("parents") << "parents" << false;
}

void tst_PropertyTree::backLinksShowTheOwnersId()
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

void tst_PropertyTree::vectorsAreBeautified()
{
    m_sampler->vector.setValue(osg::Vec3f(1, 2.5f, 1e-7f));
    show(m_sampler);
    QCOMPARE(text(*m_editor, "vector"), QString("1, 2.5, 1e-07"));
}

void tst_PropertyTree::theShallowVariantAddsTheTitleOnly()
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

void tst_PropertyTree::theShallowVariantNamesNamedNodes()
{
    const kavoNodePtr named(kavoTestScene::makeGroup("Root"));
    const kavoNodePtr nameless(kavoTestScene::makeGroup(nullptr));
    m_editor->setFCnr(nullptr, osg::NodePtr(named), "a", false);
    m_editor->setFCnr(nullptr, osg::NodePtr(nameless), "b", false);
    QCOMPARE(m_editor->properties().at(0)->propertyName(),
        titleOf("a", osg::NodePtr(named)) + " name:Root");
    QCOMPARE(m_editor->properties().at(1)->propertyName(), titleOf("b", osg::NodePtr(nameless)));
}

void tst_PropertyTree::collapsingReturnsTheItem()
{
    show(m_sampler);
    QtBrowserItem *item = m_editor->collapseProperty(top(*m_editor));
    QVERIFY(item);
    QCOMPARE(item->property(), top(*m_editor));
    QVERIFY(!isOpen(*m_editor, top(*m_editor)));
}

void tst_PropertyTree::collapsingAStrangerReturnsNull()
{
    QtVariantPropertyManager manager;
    QCOMPARE(m_editor->collapseProperty(manager.addProperty(QVariant::Int)), nullptr);
}

KAVO_TEST_MAIN(tst_PropertyTree)
#include "tst_propertytree.moc"
