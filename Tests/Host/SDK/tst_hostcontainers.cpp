#include <OSGAnimNodeBase.h>
#include <OSGTransformVariantList.h>
#include <OSGValuePairBase.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGThread.h>

#include <QTest>

class tst_HostContainers : public QObject
{
    Q_OBJECT

private slots:
    void everyTypeIsRegistered_data();
    void everyTypeIsRegistered();
    void fieldsStandInTheirOrder_data();
    void fieldsStandInTheirOrder();
    void everyTypeIsMadeByName_data();
    void everyTypeIsMadeByName();
    void valuePairsAreReachedThroughTheReflection();
    void valuePairsAreCopiedWithTheirContainer();
    void anEditOfValuePairsGoesToTheChangeList();
    void aNodeTakesValuePairsAsAttachment();
    void anAnimationListsNodesWithoutReferences();
    void aVariantListIsAFieldOfItsOwnType();
    void aVariantListHoldsReferences();
    void anEditOfAVariantListTakesReferencesToo();
    void aVariantListMayHoldNulls();
    void aCopiedVariantListSharesItsVariants();
    void aVariantHasLabelAndMatrix();
};

static osg::FieldContainerType *typeOf(const char *name)
{
    return osg::FieldContainerFactory::the()->findType(name);
}

static std::string textOf(const osg::FieldContainerPtr &container, const char *field)
{
    std::string text;
    return container->getField(field)->getValueByStr(text);
}

void tst_HostContainers::everyTypeIsRegistered_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("parent");
    QTest::newRow("value pairs") << QByteArray("ValuePairBase") << QByteArray("Attachment");
    QTest::newRow("animation") << QByteArray("AnimNodeBase") << QByteArray("Attachment");
    QTest::newRow("variant") << QByteArray("TransformVariant") << QByteArray("AttachmentContainer");
    QTest::newRow("variants") << QByteArray("TransformVariantList") << QByteArray("Attachment");
}

void tst_HostContainers::everyTypeIsRegistered()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, parent);
    const osg::FieldContainerType *found = typeOf(type);
    QVERIFY(found);
    QCOMPARE(QByteArray(found->getParent()->getCName()), parent);
    QCOMPARE(
        QByteArray(osg::FieldContainerFactory::the()->findGroupName(found->getGroupId())), type);
    QCOMPARE(found->isAttachment(), parent == "Attachment");
}

void tst_HostContainers::fieldsStandInTheirOrder_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("value pairs") << QByteArray("ValuePairBase")
                                 << QStringList { "parents", "internal", "keys", "values" };
    QTest::newRow("animation") << QByteArray("AnimNodeBase")
                               << QStringList { "parents", "internal", "nodes" };
    QTest::newRow("variant") << QByteArray("TransformVariant")
                             << QStringList { "attachments", "label", "matrix" };
    QTest::newRow("variants") << QByteArray("TransformVariantList")
                              << QStringList { "parents", "internal", "variants" };
}

void tst_HostContainers::fieldsStandInTheirOrder()
{
    QFETCH(QByteArray, type);
    QFETCH(QStringList, fields);
    osg::FieldContainerType *found = typeOf(type);
    QStringList names;
    for (osg::UInt32 id = 1; id <= found->getNumFieldDescs(); ++id) {
        names << found->getFieldDescription(id)->getCName();
        QCOMPARE(found->getFieldDescription(id)->getFieldMask(), osg::BitVector(1) << id);
    }
    QCOMPARE(names, fields);
}

void tst_HostContainers::everyTypeIsMadeByName_data()
{
    everyTypeIsRegistered_data();
}

void tst_HostContainers::everyTypeIsMadeByName()
{
    QFETCH(QByteArray, type);
    osg::FieldContainerPtr made = osg::FieldContainerFactory::the()->createFieldContainer(type);
    QVERIFY(made != osg::NullFC);
    QCOMPARE(QByteArray(made->getTypeName()), type);
    osg::subRefCP(made);
}

void tst_HostContainers::valuePairsAreReachedThroughTheReflection()
{
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    pairs->getKeys().push_back("mass");
    pairs->getField("keys")->pushValueByStr("unit");
    pairs->getMFValues()->push_back("12");
    QCOMPARE(textOf(pairs, "keys"), std::string("\"mass\", \"unit\""));
    QCOMPARE(textOf(pairs, "values"), std::string("\"12\""));
    const osg::ValuePairBase &constant = *pairs;
    QCOMPARE(constant.getKeys().getSize(), 2u);
    QCOMPARE(constant.getValues().getSize(), 1u);
    osg::subRefCP(pairs);
}

void tst_HostContainers::valuePairsAreCopiedWithTheirContainer()
{
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    pairs->getValues().push_back("12");
    const osg::FieldContainerPtr copy = pairs->shallowCopy();
    QCOMPARE(textOf(copy, "values"), std::string("\"12\""));
    osg::subRefCP(copy);
    osg::subRefCP(pairs);
}

void tst_HostContainers::anEditOfValuePairsGoesToTheChangeList()
{
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    changes->clearAll();
    {
        const osg::CPEditor edit(pairs, osg::ValuePairBase::KeysFieldMask);
        pairs->getKeys().push_back("mass");
    }
    QCOMPARE(changes->sizeChanged(), decltype(changes->sizeChanged())(1));
    QCOMPARE(changes->beginChanged()->first, pairs.getFieldContainerId());
    QCOMPARE(changes->beginChanged()->second, osg::ValuePairBase::KeysFieldMask);
    osg::subRefCP(pairs);
}

void tst_HostContainers::aNodeTakesValuePairsAsAttachment()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    node->addAttachment(pairs);
    QVERIFY(node->findAttachment(osg::ValuePairBase::getClassType()) == pairs);
}

void tst_HostContainers::anAnimationListsNodesWithoutReferences()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    const osg::AnimNodeBasePtr animation = osg::AnimNodeBase::create();
    animation->getNodes().push_back(node);
    QCOMPARE(animation->getField("nodes")->getSize(), 1u);
    QCOMPARE(
        QByteArray(animation->getField("nodes")->getType().getCName()), QByteArray("MFNodePtr"));
    QCOMPARE(osg::NodePtr(node).getRefCount(), 1);
    osg::subRefCP(animation);
    QCOMPARE(osg::NodePtr(node).getRefCount(), 1);
}

void tst_HostContainers::aVariantListIsAFieldOfItsOwnType()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    const osg::Field *field = list->getField("variants");
    QCOMPARE(QByteArray(field->getType().getCName()), QByteArray("MFTransformVariantPtr"));
    QCOMPARE(QByteArray(field->getContentType().getCName()), QByteArray("TransformVariantPtr"));
    QVERIFY(&field->getType() == &osg::MFTransformVariantPtr::getClassType());
    osg::subRefCP(list);
}

void tst_HostContainers::aVariantListHoldsReferences()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    const osg::TransformVariantPtr variant = osg::TransformVariant::create();
    const osg::UInt32 id = variant.getFieldContainerId();
    list->addVariant(variant);
    QCOMPARE(variant.getRefCount(), 1);
    osg::subRefCP(list);
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(id) == osg::NullFC);
}

void tst_HostContainers::anEditOfAVariantListTakesReferencesToo()
{
    const osg::TransformVariantPtr variant = osg::TransformVariant::create();
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    osg::addRefCP(list);
    list->addVariant(variant);
    {
        const osg::CPEditor edit(list, osg::TransformVariantList::VariantsFieldMask);
        list->getMFVariants()->push_back(variant);
    }
    QCOMPARE(variant.getRefCount(), 2);
    const osg::UInt32 id = variant.getFieldContainerId();
    osg::subRefCP(list);
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(id) == osg::NullFC);
}

void tst_HostContainers::aVariantListMayHoldNulls()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    list->addVariant(osg::NullFC);
    list->addVariant(osg::TransformVariant::create());
    QCOMPARE(list->getVariants().getSize(), 2u);
    list->clearVariants();
    QVERIFY(list->getVariants().isEmpty());
    osg::subRefCP(list);
}

void tst_HostContainers::aCopiedVariantListSharesItsVariants()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    const osg::TransformVariantPtr variant = osg::TransformVariant::create();
    list->addVariant(variant);
    const osg::FieldContainerPtr copy = list->shallowCopy();
    QCOMPARE(variant.getRefCount(), 2);
    osg::subRefCP(list);
    QCOMPARE(variant.getRefCount(), 1);
    osg::subRefCP(copy);
}

void tst_HostContainers::aVariantHasLabelAndMatrix()
{
    const osg::TransformVariantPtr variant = osg::TransformVariant::create();
    variant->setLabel("left");
    variant->getField("matrix")->pushValueByStr("2 0 0 0  0 1 0 0  0 0 1 0  0 0 0 1");
    QCOMPARE(textOf(variant, "label"), std::string("\"left\""));
    QCOMPARE(variant->getMatrix()[0][0], 2.0f);
    osg::subRefCP(variant);
}

KAVO_TEST_MAIN(tst_HostContainers)
#include "tst_hostcontainers.moc"
