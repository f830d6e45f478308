#include "OSGCrossing.h"
#include "OSGRecipe.h"
#include "OSGTrain.h"
#include "OSGWagon.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

OSG_USING_NAMESPACE

/// Container classes as clients of the library write them by hand: with everything spelt out
/// (Recipe) and with the macros, with fields of values, of nodes and of a handle of their own.
class tst_ContainerStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void typesAreKnownByNameAndNumber();
    void theInitMethodIsCalledOnce();
    void ownFieldsFollowTheInheritedOnes();
    void familiesAndGroupsAreKnown();
    void anAbstractClassHasFieldsButNoContainers();
    void ownValueTypesHaveTheirTexts();
    void ownValueTypesHaveTheirBytes();
    void ownPointerFieldsAreRegistered();
    void newContainersAreInTheStoreWithoutReference();
    void theEndOfAnEditIsToldToTheContainerAndTheList();
    void fieldsAreReachedByNameAndId();
    void anAttachmentHangsUnderItsGroup();
    void aCoreIsReachedThroughItsNode();
    void defaultsComeFromTheConstructor();
    void heldContainersGoWithTheirHolder();
    void aCopyHoldsTheSameContainers();
};

void tst_ContainerStyle::initTestCase()
{
    ChangeList::setReadWriteDefault(true);
    osgInit(0, nullptr);
}

void tst_ContainerStyle::typesAreKnownByNameAndNumber()
{
    FieldContainerType &type = Recipe::getClassType();
    QVERIFY(FieldContainerFactory::the()->findType("Recipe") == &type);
    QVERIFY(FieldContainerFactory::the()->findType(type.getId()) == &type);
    QVERIFY(FieldContainerFactory::the()->createFieldContainer("Wagon") != NullFC);
}

void tst_ContainerStyle::theInitMethodIsCalledOnce()
{
    QCOMPARE(recipeInitCalls(), 1);
}

void tst_ContainerStyle::ownFieldsFollowTheInheritedOnes()
{
    const QStringList names { "parents", "internal", "ingredients", "steps" };
    FieldContainerType &type = Recipe::getClassType();
    QCOMPARE(int(type.getNumFieldDescs()), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const FieldDescription *description = type.getFieldDescription(i + 1);
        QCOMPARE(QString(description->getCName()), names[i]);
        QCOMPARE(description->getFieldId(), UInt32(i + 1));
        QCOMPARE(description->getFieldMask(), BitVector(2) << i);
    }
    QVERIFY(Crossing::getClassType().findFieldDescription("lights")->isInternal());
}

void tst_ContainerStyle::familiesAndGroupsAreKnown()
{
    FieldContainerFactory &factory = *FieldContainerFactory::the();
    QVERIFY(Recipe::getClassType().isAttachment());
    QVERIFY(Crossing::getClassType().isNodeCore());
    QCOMPARE(factory.findGroupName(Recipe::getClassType().getGroupId()), "Recipe");
    QCOMPARE(factory.findGroupName(Crossing::getClassType().getGroupId()), "crossroads");
}

void tst_ContainerStyle::anAbstractClassHasFieldsButNoContainers()
{
    FieldContainerType &type = Track::getClassType();
    QVERIFY(type.isAbstract() && type.isNodeCore());
    QCOMPARE(Track::getClassTypeId(), type.getId());
    QVERIFY(type.createFieldContainer() == NullFC);
    QVERIFY(Crossing::getClassType().isDerivedFrom(type));
    const RefPtr<CrossingPtr> crossing(Crossing::create());
    QVERIFY(crossing->getField(UInt32(Track::GaugeFieldId)) == crossing->getSFGauge());
}

void tst_ContainerStyle::ownValueTypesHaveTheirTexts()
{
    const RefPtr<CrossingPtr> crossing(Crossing::create());
    crossing->getField("gauge")->pushValueByStr("1000");
    crossing->getLengths().push_back(12.f);
    std::string gauge;
    std::string lengths;
    QCOMPARE(crossing->getField("gauge")->getValueByStr(gauge), std::string("1000 mm"));
    QCOMPARE(crossing->getField("lengths")->getValueByStr(lengths), std::string("12 m"));
    QCOMPARE(crossing->getField("lengths")->getContentType().getCName(), "Metres");
}

void tst_ContainerStyle::ownValueTypesHaveTheirBytes()
{
    SFGauge gauge;
    SFMetres length(12.f);
    QCOMPARE(gauge.getBinSize(), UInt32(sizeof("1435 mm")));
    QCOMPARE(length.getBinSize(), UInt32(sizeof(Metres)));
}

void tst_ContainerStyle::ownPointerFieldsAreRegistered()
{
    QCOMPARE(MFWagonPtr::getClassType().getCName(), "MFWagonPtr");
    QCOMPARE(MFWagonPtr::getClassType().getContentType().getCName(), "WagonPtr");
    QCOMPARE(
        SFWagonPtr::getClassType().getContentType().getCParentName(), "AttachmentContainerPtr");
}

void tst_ContainerStyle::newContainersAreInTheStoreWithoutReference()
{
    const RecipePtr recipe = Recipe::create();
    QCOMPARE(recipe.getRefCount(), 0);
    QVERIFY(FieldContainerFactory::the()->getContainer(recipe.getFieldContainerId()) == recipe);
    subRefCP(recipe);
}

void tst_ContainerStyle::theEndOfAnEditIsToldToTheContainerAndTheList()
{
    const RefPtr<RecipePtr> recipe(Recipe::create());
    ChangeList &changes = *Thread::getCurrentChangeList();
    changes.clearAll();
    Recipe::changedMasks.clear();
    beginEditCP(recipe.get(), Recipe::StepsFieldMask);
    recipe->getSteps().push_back("stir");
    QVERIFY(Recipe::changedMasks.isEmpty());
    endEditCP(recipe.get(), Recipe::StepsFieldMask);
    QCOMPARE(Recipe::changedMasks, QVector<quint64> { Recipe::StepsFieldMask });
    QCOMPARE(changes.sizeChanged(), std::size_t(1));
    QCOMPARE(changes.beginChanged()->first, recipe.get().getFieldContainerId());
}

void tst_ContainerStyle::fieldsAreReachedByNameAndId()
{
    const RefPtr<RecipePtr> recipe(Recipe::create());
    Field *field = recipe->getField("ingredients");
    QVERIFY(field == recipe->getField(UInt32(Recipe::IngredientsFieldId)));
    QVERIFY(field == &recipe->getIngredients());
    field->pushValueByStr("salt");
    field->pushValueByStr("brown sugar");
    std::string text;
    QCOMPARE(field->getValueByStr(text), std::string("\"salt\", \"brown sugar\""));
}

void tst_ContainerStyle::anAttachmentHangsUnderItsGroup()
{
    const NodeRefPtr node(Node::create());
    const RecipePtr recipe = Recipe::create();
    node->addAttachment(recipe);
    QVERIFY(node->findAttachment(Recipe::getClassType()) == recipe);
    QCOMPARE(recipe.getRefCount(), 1);
    QCOMPARE(node->getSFAttachments()->getValue().begin()->first,
        UInt32(Recipe::getClassType().getGroupId()) << 16);
}

void tst_ContainerStyle::aCoreIsReachedThroughItsNode()
{
    CrossingPtr crossing;
    const NodeRefPtr node(makeCoredNode<Crossing>(&crossing));
    crossing->getRoads().push_back(node.get());
    QVERIFY(CrossingPtr::dcast(node->getCore()) == crossing);
    QVERIFY(GroupPtr::dcast(node->getCore()) == NullFC);
    QCOMPARE(crossing->getField("roads")->getType().getCName(), "MFNodePtr");
}

void tst_ContainerStyle::defaultsComeFromTheConstructor()
{
    const RefPtr<WagonPtr> wagon(Wagon::create());
    QCOMPARE(wagon->getLoad(), 1.5f);
}

void tst_ContainerStyle::heldContainersGoWithTheirHolder()
{
    TrainPtr train = Train::create();
    addRefCP(train);
    train->addWagon(Wagon::create());
    const UInt32 id = train->getWagons()[0].getFieldContainerId();
    subRefCP(train);
    QVERIFY(train == NullFC);
    QVERIFY(FieldContainerFactory::the()->getContainer(id) == NullFC);
}

void tst_ContainerStyle::aCopyHoldsTheSameContainers()
{
    const RefPtr<TrainPtr> train(Train::create());
    const WagonPtr wagon = Wagon::create();
    train->addWagon(wagon);
    const RefPtr<TrainPtr> copy(TrainPtr::dcast(train->shallowCopy()));
    QVERIFY(copy->getWagons()[0] == wagon);
    QCOMPARE(wagon.getRefCount(), 2);
}

QTEST_APPLESS_MAIN(tst_ContainerStyle)
#include "tst_containerstyle.moc"
