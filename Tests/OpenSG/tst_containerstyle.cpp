// Container classes as clients of the library write them by hand, in one file: with everything
// spelt out and with the macros, with fields of values, of nodes and of a handle of their own.

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGNodeCoreFields.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSField.h>
#include <OpenSG/OSGThread.h>

#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

#include <QtTest>

OSG_BEGIN_NAMESPACE

// Recipe: an attachment with two lists of strings, everything spelt out.

class Recipe;
typedef FCPtr<AttachmentPtr, Recipe> RecipePtr;

class Recipe : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef RecipePtr Ptr;

    enum {
        IngredientsFieldId = Inherited::NextFieldId,
        StepsFieldId = IngredientsFieldId + 1,
        NextFieldId = StepsFieldId + 1
    };
    static const BitVector IngredientsFieldMask;
    static const BitVector StepsFieldMask;

    static FieldContainerType &getClassType(void) { return _type; }
    static UInt32 getClassTypeId(void) { return _type.getId(); }
    virtual FieldContainerType &getType(void) { return _type; }
    virtual const FieldContainerType &getType(void) const { return _type; }
    virtual UInt32 getContainerSize(void) const { return sizeof(Recipe); }

    static RecipePtr create(void)
    {
        RecipePtr fc;
        if (getClassType().getPrototype() != NullFC) {
            fc = RecipePtr::dcast(getClassType().getPrototype()->shallowCopy());
        }
        return fc;
    }
    static RecipePtr createEmpty(void)
    {
        RecipePtr fc;
        newPtr(fc);
        return fc;
    }
    virtual FieldContainerPtr shallowCopy(void) const
    {
        RecipePtr fc;
        newPtr(fc, this);
        return fc;
    }

    MFString *getMFIngredients(void) { return &_mfIngredients; }
    MFString *getMFSteps(void) { return &_mfSteps; }
    MFString &getIngredients(void) { return _mfIngredients; }
    MFString &getSteps(void) { return _mfSteps; }

    virtual void changed(BitVector whichField, UInt32 origin)
    {
        changedMasks.append(whichField);
        Inherited::changed(whichField, origin);
    }
    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

    static QVector<quint64> changedMasks;

protected:
    Recipe(void)
        : Inherited()
        , _mfIngredients()
        , _mfSteps()
    {
    }
    Recipe(const Recipe &source)
        : Inherited(source)
        , _mfIngredients(source._mfIngredients)
        , _mfSteps(source._mfSteps)
    {
    }
    virtual ~Recipe(void) { }

    void executeSyncImpl(Recipe *other, const BitVector &which)
    {
        Inherited::executeSyncImpl(other, which);
        if (FieldBits::NoField != (IngredientsFieldMask & which)) {
            _mfIngredients.syncWith(other->_mfIngredients);
        }
        if (FieldBits::NoField != (StepsFieldMask & which)) {
            _mfSteps.syncWith(other->_mfSteps);
        }
    }
    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        executeSyncImpl(static_cast<Recipe *>(&other), which);
    }

    MFString _mfIngredients;
    MFString _mfSteps;

private:
    friend class FieldContainer;

    static void initMethod(void) { ++initCalls; }
    static int initCalls;
    friend int recipeInitCalls();

    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const Recipe &);
};

QVector<quint64> Recipe::changedMasks;
int Recipe::initCalls = 0;

const BitVector Recipe::IngredientsFieldMask
    = (TypeTraits<BitVector>::One << Recipe::IngredientsFieldId);
const BitVector Recipe::StepsFieldMask = (TypeTraits<BitVector>::One << Recipe::StepsFieldId);

FieldDescription *Recipe::_desc[]
    = { new FieldDescription(MFString::getClassType(), "ingredients", Recipe::IngredientsFieldId,
            Recipe::IngredientsFieldMask, false, (FieldAccessMethod)&Recipe::getMFIngredients),
          new FieldDescription(MFString::getClassType(), "steps", Recipe::StepsFieldId,
              Recipe::StepsFieldMask, false, (FieldAccessMethod)&Recipe::getMFSteps) };

FieldContainerType Recipe::_type("Recipe", "Attachment", NULL,
    (PrototypeCreateF)&Recipe::createEmpty, Recipe::initMethod, Recipe::_desc,
    sizeof(Recipe::_desc));

int recipeInitCalls()
{
    return Recipe::initCalls;
}

// Crossing: a core with a list of nodes, by the macros.

class Crossing;
typedef FCPtr<NodeCorePtr, Crossing> CrossingPtr;

class Crossing : public NodeCore
{
    typedef NodeCore Inherited;

public:
    typedef CrossingPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(RoadsField)
    OSG_FC_FIELD_IDM_DECL(LightsField, RoadsField)
    OSG_FC_LAST_FIELD_IDM_DECL(LightsField)
    OSG_FIELD_CONTAINER_DECL(CrossingPtr)

    MFNodePtr *getMFRoads(void) { return &_mfRoads; }
    MFNodePtr &getRoads(void) { return _mfRoads; }
    SFBool *getSFLights(void) { return &_sfLights; }

    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

protected:
    Crossing(void)
        : Inherited()
        , _mfRoads()
        , _sfLights(true)
    {
    }
    Crossing(const Crossing &source)
        : Inherited(source)
        , _mfRoads(source._mfRoads)
        , _sfLights(source._sfLights)
    {
    }
    virtual ~Crossing(void) { }

    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<Crossing *>(&other), which);
    }

    MFNodePtr _mfRoads;
    SFBool _sfLights;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Crossing &);
};

OSG_FC_FIRST_FIELD_IDM_DEF(Crossing, RoadsField)
OSG_FC_FIELD_IDM_DEF(Crossing, LightsField, RoadsField)
OSG_FC_LAST_FIELD_IDM_DEF(Crossing, LightsField)

FieldDescription *Crossing::_desc[] = { new FieldDescription(MFNodePtr::getClassType(), "roads",
                                            OSG_FC_FIELD_IDM_DESC(Crossing::RoadsField), false,
                                            (FieldAccessMethod)&Crossing::getMFRoads),
    new FieldDescription(SFBool::getClassType(), "lights",
        OSG_FC_FIELD_IDM_DESC(Crossing::LightsField), true,
        (FieldAccessMethod)&Crossing::getSFLights) };

FieldContainerType Crossing::_type("Crossing", "NodeCore", "crossroads",
    (PrototypeCreateF)&Crossing::createEmpty, NULL, Crossing::_desc, sizeof(Crossing::_desc));

OSG_FIELD_CONTAINER_INL_DEF(Crossing, CrossingPtr)
OSG_FIELD_CONTAINER_DEF(Crossing, CrossingPtr)

// Wagon: a container with fields of its own handle type.

class Wagon;
typedef FCPtr<AttachmentContainerPtr, Wagon> WagonPtr;

template <> struct FieldDataTraits<WagonPtr> : public FieldTraitsRecurseMapper<WagonPtr, true>
{
    static DataType _type;
    enum { StringConvertable = 0x00 };
    enum { bHasParent = 0x01 };
    static DataType &getType(void) { return _type; }
    static const char *getSName(void) { return "SFWagonPtr"; }
    static const char *getMName(void) { return "MFWagonPtr"; }
};

typedef SField<WagonPtr> SFWagonPtr;
typedef MField<WagonPtr> MFWagonPtr;

DataType FieldDataTraits<WagonPtr>::_type("WagonPtr", "AttachmentContainerPtr");
OSG_DLLEXPORT_SFIELD_DEF1(WagonPtr, );
OSG_DLLEXPORT_MFIELD_DEF1(WagonPtr, );

class Wagon : public AttachmentContainer
{
    typedef AttachmentContainer Inherited;

public:
    typedef WagonPtr Ptr;
    OSG_FC_FIRST_FIELD_IDM_DECL(LoadField)
    OSG_FC_LAST_FIELD_IDM_DECL(LoadField)
    OSG_FIELD_CONTAINER_DECL(WagonPtr)

    SFReal32 *getSFLoad(void) { return &_sfLoad; }
    Real32 &getLoad(void) { return _sfLoad.getValue(); }
    void setLoad(const Real32 &value) { _sfLoad.setValue(value); }

    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

protected:
    Wagon(void)
        : Inherited()
        , _sfLoad(Real32(1.5f))
    {
    }
    Wagon(const Wagon &source)
        : Inherited(source)
        , _sfLoad(source._sfLoad)
    {
    }
    virtual ~Wagon(void) { }

    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<Wagon *>(&other), which);
    }

    SFReal32 _sfLoad;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Wagon &);
};

OSG_FC_FIRST_FIELD_IDM_DEF(Wagon, LoadField)
OSG_FC_LAST_FIELD_IDM_DEF(Wagon, LoadField)

FieldDescription *Wagon::_desc[] = { new FieldDescription(SFReal32::getClassType(), "load",
    OSG_FC_FIELD_IDM_DESC(Wagon::LoadField), false, (FieldAccessMethod)&Wagon::getSFLoad) };

FieldContainerType Wagon::_type("Wagon", "AttachmentContainer", NULL,
    (PrototypeCreateF)&Wagon::createEmpty, NULL, Wagon::_desc, sizeof(Wagon::_desc));

OSG_FIELD_CONTAINER_INL_DEF(Wagon, WagonPtr)
OSG_FIELD_CONTAINER_DEF(Wagon, WagonPtr)

// Train: holds wagons. Pointer fields count no references, so the class does.

class Train;
typedef FCPtr<AttachmentContainerPtr, Train> TrainPtr;

class Train : public AttachmentContainer
{
    typedef AttachmentContainer Inherited;

public:
    typedef TrainPtr Ptr;
    OSG_FC_FIRST_FIELD_IDM_DECL(WagonsField)
    OSG_FC_LAST_FIELD_IDM_DECL(WagonsField)
    OSG_FIELD_CONTAINER_DECL(TrainPtr)

    MFWagonPtr *getMFWagons(void) { return &_mfWagons; }
    MFWagonPtr &getWagons(void) { return _mfWagons; }
    void addWagon(const WagonPtr &wagon)
    {
        addRefCP(wagon);
        _mfWagons.push_back(wagon);
    }

    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

protected:
    Train(void)
        : Inherited()
        , _mfWagons()
    {
    }
    Train(const Train &source)
        : Inherited(source)
        , _mfWagons()
    {
        for (UInt32 i = 0; i < source._mfWagons.size(); ++i) {
            addWagon(source._mfWagons[i]);
        }
    }
    virtual ~Train(void)
    {
        for (UInt32 i = 0; i < _mfWagons.size(); ++i) {
            subRefCP(_mfWagons[i]);
        }
    }

    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<Train *>(&other), which);
    }

    MFWagonPtr _mfWagons;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Train &);
};

OSG_FC_FIRST_FIELD_IDM_DEF(Train, WagonsField)
OSG_FC_LAST_FIELD_IDM_DEF(Train, WagonsField)

FieldDescription *Train::_desc[] = { new FieldDescription(MFWagonPtr::getClassType(), "wagons",
    OSG_FC_FIELD_IDM_DESC(Train::WagonsField), false, (FieldAccessMethod)&Train::getMFWagons) };

FieldContainerType Train::_type("Train", "AttachmentContainer", NULL,
    (PrototypeCreateF)&Train::createEmpty, NULL, Train::_desc, sizeof(Train::_desc));

OSG_FIELD_CONTAINER_INL_DEF(Train, TrainPtr)
OSG_FIELD_CONTAINER_DEF(Train, TrainPtr)

OSG_END_NAMESPACE

OSG_USING_NAMESPACE

class tst_ContainerStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void typesAreKnownByNameAndNumber();
    void theInitMethodIsCalledOnce();
    void ownFieldsFollowTheInheritedOnes();
    void familiesAndGroupsAreKnown();
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
