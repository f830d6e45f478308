#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGCNodePtr.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGThreadManager.h>

#include <QtTest>

#include <sstream>
#include <typeinfo>

using namespace osg;

class tst_Handles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void typeNamesArePinned_data();
    void typeNamesArePinned();
    void aHandleHasSixteenBytes();
    void aNewHandleIsNull();
    void nullHandlesOfAllTypesAreEqual();
    void nullHandlesAnswerWithZero();
    void nullIsLessThanNothing();
    void handlesConvertToTheirBases();
    void handlesOfDifferentTypesCompareByContainer();
    void dcastFindsTheClass();
    void dcastOfAnotherClassIsNull();
    void dcastOfNullIsNull();
    void handlesWorkAsConditions();
    void theNodeHandleOfACoreReachesTheCore();
    void handlesPrintKindAddressAndTarget();
    void pointerTextIsTheAddress();
    void thereIsOneAspect();
    void everyAspectIsTheContainerItself();
    void aHandleNotesAPositionInItsParent();
    void freeFunctionsAskAnyHandle();
};

namespace {

template <class T> void addName(const char *row, const char *mangled)
{
    QTest::newRow(row) << QByteArray(typeid(T).name()) << QByteArray(mangled);
}

template <class T> QString printed(const T &handle)
{
    std::ostringstream stream;
    stream << handle;
    return QString::fromStdString(stream.str());
}

QString addressOf(const void *address)
{
    return "0x" + QString::number(reinterpret_cast<quintptr>(address), 16);
}

} // namespace

void tst_Handles::typeNamesArePinned_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("expected");
    addName<NodePtr>("NodePtr", "N3osg7NodePtrE");
    addName<AttachmentPtr>("AttachmentPtr", "N3osg13AttachmentPtrE");
    addName<FieldContainerPtr>("FieldContainerPtr", "N3osg17FieldContainerPtrE");
    addName<AttachmentContainerPtr>("AttachmentContainerPtr", "N3osg22AttachmentContainerPtrE");
    addName<MaterialPtr>("MaterialPtr", "N3osg5FCPtrINS_22AttachmentContainerPtrENS_8MaterialEEE");
    addName<NodeCorePtr>("NodeCorePtr", "N3osg5FCPtrINS_22AttachmentContainerPtrENS_8NodeCoreEEE");
    addName<GroupPtr>(
        "GroupPtr", "N3osg5FCPtrINS0_INS_22AttachmentContainerPtrENS_8NodeCoreEEENS_5GroupEEE");
    addName<StateChunkPtr>("StateChunkPtr", "N3osg5FCPtrINS_13AttachmentPtrENS_10StateChunkEEE");
    addName<ChunkMaterialPtr>("ChunkMaterialPtr",
        "N3osg5FCPtrINS0_INS_22AttachmentContainerPtrENS_8MaterialEEENS_13ChunkMaterialEEE");
    addName<NamePtr>("NamePtr",
        "N3osg5FCPtrINS_13AttachmentPtrENS_16SimpleAttachmentINS_18NameAttachmentDescEEEEE");
}

void tst_Handles::typeNamesArePinned()
{
    QFETCH(QByteArray, name);
    QTEST(name, "expected");
}

void tst_Handles::aHandleHasSixteenBytes()
{
    QCOMPARE(sizeof(FieldContainerPtr), std::size_t(16));
    QCOMPARE(sizeof(NodePtr), std::size_t(16));
    QCOMPARE(sizeof(ChunkMaterialPtr), std::size_t(16));
}

void tst_Handles::aNewHandleIsNull()
{
    QVERIFY(NodePtr() == NullFC);
    QVERIFY(!MaterialPtr());
    QVERIFY(!NullMaterial);
}

void tst_Handles::nullHandlesOfAllTypesAreEqual()
{
    QVERIFY(NodePtr() == MaterialPtr());
    QVERIFY(NamePtr(NullFC) == NullFC);
    NodePtr node = Node::create();
    const NodeRefPtr reference(node);
    node = NullFC;
    QVERIFY(node == NullFC);
}

void tst_Handles::nullHandlesAnswerWithZero()
{
    NOT_IN_STOCK("stock 1.8 crashes when a null handle is asked for its id");
    const NodePtr null;
    QCOMPARE(null.getRefCount(), 0);
    QCOMPARE(null.getFieldContainerId(), 0u);
    QCOMPARE(int(null.getContainerSize()), 0);
    addRefCP(null);
    subRefCP(null);
    beginEditCP(null);
    endEditCP(null);
    changedCP(null);
}

void tst_Handles::nullIsLessThanNothing()
{
    const NodeRefPtr node(Node::create());
    QVERIFY(!(node.get() < NullFC));
    QVERIFY(NodePtr() < node.get());
}

void tst_Handles::handlesConvertToTheirBases()
{
    const NodeCoreRefPtr holder(ComponentTransform::create());
    const ComponentTransformPtr transform = ComponentTransformPtr::dcast(holder.get());
    const NodeCorePtr core = transform;
    const AttachmentContainerPtr container = transform;
    const FieldContainerPtr any = transform;
    QVERIFY(core == transform && container == transform && any == transform);
}

void tst_Handles::handlesOfDifferentTypesCompareByContainer()
{
    const NodeRefPtr first(Node::create());
    const NodeRefPtr second(Node::create());
    const FieldContainerPtr any = first.get();
    QVERIFY(any == first.get());
    QVERIFY(any != second.get());
}

void tst_Handles::dcastFindsTheClass()
{
    const RefPtr<GroupPtr> group(Transform::create());
    QVERIFY(TransformPtr::dcast(group.get()) == group.get());
    QVERIFY(Group::Ptr::dcast(FieldContainerPtr(group.get())) == group.get());
    QVERIFY(dynamic_fcptr_cast<TransformPtr>(group.get()) == group.get());
}

void tst_Handles::dcastOfAnotherClassIsNull()
{
    const RefPtr<GroupPtr> group(Group::create());
    QVERIFY(TransformPtr::dcast(group.get()) == NullFC);
    QVERIFY(NodePtr::dcast(group.get()) == NullFC);
}

void tst_Handles::dcastOfNullIsNull()
{
    QVERIFY(TransformPtr::dcast(GroupPtr()) == NullFC);
    QVERIFY(NodePtr::dcast(NullFC) == NullFC);
}

void tst_Handles::handlesWorkAsConditions()
{
    const NodeRefPtr node(Node::create());
    QVERIFY(node.get() ? true : false);
    QVERIFY(node.get() && true);
    QVERIFY(!(NodePtr() && true));
}

void tst_Handles::theNodeHandleOfACoreReachesTheCore()
{
    GroupPtr core;
    const NodeRefPtr node(makeCoredNode<Group>(&core));
    const CNodePtr byCore(node.get());
    QVERIFY(byCore.getCPtr() == core.getCPtr());
    QVERIFY(byCore.getNode() == node.get());
    QVERIFY(!CNodePtr().getCPtr());
}

void tst_Handles::handlesPrintKindAddressAndTarget()
{
    const NodeRefPtr holder(Node::create());
    const NodePtr node = holder.get();
    const FieldContainerPtr null;
    const RefPtr<MaterialPtr> materialHolder(SimpleMaterial::create());
    const MaterialPtr material = materialHolder.get();
    QCOMPARE(printed(node),
        "NodePtr " + addressOf(&node) + ":NodePtr(" + addressOf(node.getCPtr()) + ")");
    QCOMPARE(printed(null), "FieldContainerPtr " + addressOf(&null) + ":NullFC");
    QCOMPARE(printed(material),
        "FCPtr " + addressOf(&material) + ":SimpleMaterialPtr(" + addressOf(material.getCPtr())
            + ")");
}

void tst_Handles::pointerTextIsTheAddress()
{
    const NodeRefPtr node(Node::create());
    SFNodePtr field;
    std::string text;
    QCOMPARE(QString::fromStdString(field.getValueByStr(text)), QString("(nil)"));
    field.setValue(node.get());
    QCOMPARE(QString::fromStdString(field.getValueByStr(text)), addressOf(node.get().getCPtr()));
}

void tst_Handles::thereIsOneAspect()
{
    NOT_IN_STOCK("stock 1.8 has two aspects");
    QCOMPARE(ThreadManager::getNumAspects(), UInt32(1));
    QCOMPARE(Thread::getAspect(), UInt32(0));
}

void tst_Handles::everyAspectIsTheContainerItself()
{
    NOT_IN_STOCK("stock 1.8 has a copy of each container for each of its two aspects");
    const GroupRefPtr group(Group::create());
    QVERIFY(group.get().getAspectCPtr(0) == group.get().getBaseCPtr());
    QVERIFY(group.get().getAspectCPtr(1) == group.get().getBaseCPtr());
    QVERIFY(!GroupPtr().getAspectCPtr(0));
}

void tst_Handles::aHandleNotesAPositionInItsParent()
{
    NodePtr node;
    QCOMPARE(node.getParentFieldPos(), FieldContainerPtrBase::InvalidParentEPos);
    node.setParentFieldPos(3);
    QCOMPARE(node.getParentFieldPos(), UInt16(3));
    const NodePtr copy = node;
    QCOMPARE(copy.getParentFieldPos(), UInt16(3));
    QVERIFY(copy == NullFC);
}

void tst_Handles::freeFunctionsAskAnyHandle()
{
    const GroupRefPtr group(Group::create());
    QCOMPARE(getContainerId(group.get()), group.get().getFieldContainerId());
    QCOMPARE(getRefCount(group.get()), 1);
    QVERIFY(getCPtr(group.get()) == group.get().getCPtr());
    QVERIFY(dynamic_fcptr_cast<GroupPtr>(FieldContainerPtr(group.get())) == group.get());
    addRefCP(group.get());
    subRef(group.get());
    QCOMPARE(getRefCount(group.get()), 1);
}

QTEST_APPLESS_MAIN(tst_Handles)
#include "tst_handles.moc"
