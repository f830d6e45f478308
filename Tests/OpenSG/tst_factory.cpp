#include "LogCapture.h"
#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTypeFactory.h>

#include <QtTest>

#include <sstream>

using namespace osg;

class tst_Factory : public QObject
{
    Q_OBJECT

private slots:
    void typesWaitForTheStart();
    void typesAreFoundByNameAndNumber();
    void namesAreExact();
    void typesComeInOrderOfTheirNumbers();
    void groupsAreFoundByNameAndNumber();
    void unknownGroupsAreZero();
    void theGroupOfAClassIsThatOfFieldContainer();
    void descriptionsAreNumberedFromOne();
    void descriptionsAreFoundByExactName();
    void familiesAreKnown();
    void derivationShowsOnlyBetweenContainerTypes();
    void containersAreMadeByName();
    void onlyTheRightFamilyIsMade();
    void abstractTypesMakeNothing();
    void theStoreHoldsEveryContainer();
    void idsNeverRecur();
    void containersPastTheEndAreNull();
    void typesOfALateLibraryWaitForTheirInitialisation();
    void aLateTypeWithoutParentIsReported();
    void aTypeThatGoesIsForgotten();
    void descriptionsAreAddedOnlyWhereAllowed();
    void aDescriptionWithoutAccessIsReported();
    void aNewContainerIsACopyOfThePrototype();
    void mappedIdsGoThroughTheMapper();
    void aTypeIsListedWithItsFields();
    void allTypesAreListed();
    void anUnknownTypeIsNotListed();
};

namespace {

FieldContainerFactory &factory()
{
    return *FieldContainerFactory::the();
}

} // namespace

void tst_Factory::typesWaitForTheStart()
{
    QVERIFY(!factory().findType("Node"));
    QVERIFY(factory().findUninitializedType("Node") == &Node::getClassType());
    QVERIFY(!factory().findUninitializedType(nullptr));
    QCOMPARE(Node::getClassType().getNumFieldDescs(), 0u);
    QVERIFY(!Node::getClassType().getParent());
    QVERIFY(Node::getClassType().getId() > 0);
    QVERIFY(Node::getClassType().getGroupId() > 0);
    QVERIFY(!factory().getFieldContainerStore());
    osgInit(0, nullptr);
    QVERIFY(!factory().findUninitializedType("Node"));
}

void tst_Factory::typesAreFoundByNameAndNumber()
{
    FieldContainerType *type = factory().findType("Node");
    QVERIFY(type == &Node::getClassType());
    QVERIFY(factory().findType(type->getId()) == type);
    QVERIFY(TypeFactory::the()->findType("Node") == type);
}

void tst_Factory::namesAreExact()
{
    QVERIFY(!factory().findType("node"));
    QVERIFY(!factory().findType("Nod"));
    QVERIFY(!factory().findType(""));
    QVERIFY(!factory().findType(static_cast<const Char8 *>(nullptr)));
    QVERIFY(!factory().findType(0u));
}

void tst_Factory::typesComeInOrderOfTheirNumbers()
{
    UInt32 previous = 0;
    UInt32 count = 0;
    for (auto type = factory().beginTypes(); type != factory().endTypes(); ++type, ++count) {
        QVERIFY(type->first > previous);
        QCOMPARE(type->second->getId(), type->first);
        previous = type->first;
    }
    QCOMPARE(count, factory().getNumTypes());
}

void tst_Factory::groupsAreFoundByNameAndNumber()
{
    const UInt16 group = Name::getClassType().getGroupId();
    QCOMPARE(factory().findGroupId("name"), group);
    QCOMPARE(factory().findGroupName(group), "name");
    QVERIFY(group <= factory().getNumGroups());
}

void tst_Factory::unknownGroupsAreZero()
{
    QCOMPARE(int(factory().findGroupId("Name")), 0);
    QVERIFY(!factory().findGroupName(0));
    QVERIFY(!factory().findGroupName(factory().getNumGroups() + 1));
}

void tst_Factory::theGroupOfAClassIsThatOfFieldContainer()
{
    QCOMPARE(Name::getClassGroupId(), FieldContainer::getClassType().getGroupId());
}

void tst_Factory::descriptionsAreNumberedFromOne()
{
    FieldContainerType &type = Node::getClassType();
    QVERIFY(!type.getFieldDescription(0));
    QCOMPARE(type.getFieldDescription(1)->getCName(), "attachments");
    QCOMPARE(type.getFieldDescription(6)->getCName(), "core");
    QVERIFY(!type.getFieldDescription(7));
}

void tst_Factory::descriptionsAreFoundByExactName()
{
    FieldContainerType &type = Node::getClassType();
    QCOMPARE(type.findFieldDescription("travMask")->getFieldId(), 3u);
    QVERIFY(!type.findFieldDescription("TravMask"));
    QVERIFY(!type.findFieldDescription(nullptr));
}

void tst_Factory::familiesAreKnown()
{
    QVERIFY(Node::getClassType().isNode());
    QVERIFY(Group::getClassType().isNodeCore());
    QVERIFY(Name::getClassType().isAttachment());
    QVERIFY(!Node::getClassType().isNodeCore());
}

void tst_Factory::derivationShowsOnlyBetweenContainerTypes()
{
    FieldContainerType &group = Group::getClassType();
    QVERIFY(group.isDerivedFrom(group));
    QVERIFY(group.isDerivedFrom(NodeCore::getClassType()));
    QVERIFY(!NodeCore::getClassType().isDerivedFrom(group));
    const TypeBase &core = NodeCore::getClassType();
    QVERIFY(!group.isDerivedFrom(core));
}

void tst_Factory::containersAreMadeByName()
{
    const FieldContainerPtr node = factory().createFieldContainer("Node");
    QCOMPARE(node->getTypeName(), "Node");
    QCOMPARE(node.getRefCount(), 0);
    subRefCP(node);
}

void tst_Factory::onlyTheRightFamilyIsMade()
{
    QVERIFY(factory().createNode("Group") == NullFC);
    QVERIFY(factory().createNodeCore("Name") == NullFC);
    QVERIFY(factory().createAttachment("Node") == NullFC);
    const NodeCoreRefPtr core(factory().createNodeCore("Group"));
    const AttachmentRefPtr name(factory().createAttachment("Name"));
    QVERIFY(core != NullFC && name != NullFC);
}

void tst_Factory::abstractTypesMakeNothing()
{
    QVERIFY(factory().createFieldContainer("NodeCore") == NullFC);
    QVERIFY(factory().createFieldContainer("nothing") == NullFC);
    QVERIFY(NodeCore::getClassType().isAbstract());
}

void tst_Factory::theStoreHoldsEveryContainer()
{
    const NodeRefPtr node(Node::create());
    const UInt32 id = node.get().getFieldContainerId();
    QVERIFY(factory().getContainer(id) == node.get());
    QVERIFY(factory().getContainer(0) == NullFC);
    QVERIFY((*factory().getFieldContainerStore())[0] == NullFC);
    QCOMPARE(factory().getFieldContainerStore()->size(), std::size_t(id + 1));
}

void tst_Factory::idsNeverRecur()
{
    const NodePtr first = Node::create();
    const UInt32 id = first.getFieldContainerId();
    subRefCP(first);
    QVERIFY(factory().getContainer(id) == NullFC);
    const NodeRefPtr second(Node::create());
    QCOMPARE(second.get().getFieldContainerId(), id + 1);
}

void tst_Factory::containersPastTheEndAreNull()
{
    QVERIFY(factory().getContainer(4000000000u) == NullFC);
}

void tst_Factory::typesOfALateLibraryWaitForTheirInitialisation()
{
    FieldContainerType child("LateChild", "LateParent");
    FieldContainerType parent("LateParent", "Group");
    QVERIFY(!factory().findType("LateChild"));
    QVERIFY(factory().initializePendingTypes());
    QVERIFY(factory().findType("LateChild") == &child);
    QVERIFY(child.getParent() == &parent);
    QVERIFY(child.isNodeCore());
}

void tst_Factory::aLateTypeWithoutParentIsReported()
{
    const LogCapture log;
    FieldContainerType orphan("Orphan", "Nobody");
    QVERIFY(!factory().initializePendingTypes());
    QCOMPARE(log.text, QByteArray("WARNING:  Orphan lacks its parent Nobody\n"));
}

void tst_Factory::aTypeThatGoesIsForgotten()
{
    {
        FieldContainerType shortLived("ShortLived", "Group");
        QVERIFY(factory().initializePendingTypes());
        QVERIFY(factory().findType("ShortLived"));
    }
    QVERIFY(!factory().findType("ShortLived"));
}

void tst_Factory::descriptionsAreAddedOnlyWhereAllowed()
{
    const FieldDescription row(
        SFString::getClassType(), "extra", 0, 0, false, FieldAccessMethod(nullptr));
    FieldContainerType open("Open", "Attachment", nullptr, nullptr, nullptr, nullptr, 0, true);
    factory().initializePendingTypes();
    QCOMPARE(open.addDescription(row), 3u);
    QCOMPARE(open.findFieldDescription("extra")->getFieldMask(), BitVector(8));
    QCOMPARE(open.addDescription(row), 0u);
    QVERIFY(open.subDescription(3));
    QVERIFY(!open.subDescription(1));
    QCOMPARE(Group::getClassType().addDescription(row), 0u);
}

void tst_Factory::aDescriptionWithoutAccessIsReported()
{
    const LogCapture log;
    struct Reached : FieldDescription
    {
        using FieldDescription::FieldDescription;
        using FieldDescription::getField;
    };
    const NodeRefPtr node(Node::create());
    const Reached blind(SFString::getClassType(), "blind", 3, 8, false, FieldAccessMethod(nullptr));
    QVERIFY(!blind.getField(*node));
    QCOMPARE(log.text, QByteArray("WARNING:  No accessMethod for blind\n"));
}

void tst_Factory::aNewContainerIsACopyOfThePrototype()
{
    const NodePtr prototype = NodePtr::dcast(Node::getClassType().getPrototype());
    prototype->setTravMask(5);
    const NodeRefPtr node(Node::create());
    prototype->setTravMask(0xffffffff);
    QCOMPARE(node->getTravMask(), 5u);
    QCOMPARE(prototype.getRefCount(), 1);
}

void tst_Factory::mappedIdsGoThroughTheMapper()
{
    struct PlusOne : FieldContainerMapper
    {
        UInt32 map(UInt32 id) const override { return id + 1; }
    } mapper;
    const NodeRefPtr node(Node::create());
    const UInt32 id = node.get().getFieldContainerId();
    QVERIFY(factory().getMappedContainer(id) == node.get());
    factory().setMapper(&mapper);
    QVERIFY(factory().getMappedContainer(id - 1) == node.get());
    factory().setMapper(nullptr);
}

void tst_Factory::aTypeIsListedWithItsFields()
{
    NOT_IN_STOCK("stock 1.8 lists types in a form of its own");
    std::ostringstream listing;
    factory().writeFCD("Attachment", &listing);
    QCOMPARE(listing.str(),
        std::string("Attachment : FieldContainer  [abstract]\n"
                    "    parents MFNodePtr  [internal]\n"
                    "    internal SFBool\n"));
}

void tst_Factory::allTypesAreListed()
{
    std::ostringstream listing;
    factory().writeFCD(nullptr, &listing);
    const QByteArray text = QByteArray::fromStdString(listing.str());
    for (auto entry = factory().beginTypes(); entry != factory().endTypes(); ++entry) {
        QVERIFY(text.contains(entry->second->getCName()));
    }
}

void tst_Factory::anUnknownTypeIsNotListed()
{
    NOT_IN_STOCK("what stock 1.8 makes of it is not documented");
    LogCapture log;
    std::ostringstream listing;
    factory().writeFCD("Nothing", &listing);
    QVERIFY(listing.str().empty());
    QVERIFY(log.text.startsWith("WARNING"));
}

QTEST_APPLESS_MAIN(tst_Factory)
#include "tst_factory.moc"
