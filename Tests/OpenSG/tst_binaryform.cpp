#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGBinaryDataHandler.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGStringAttributeMap.h>

#include <QtTest>

using namespace osg;

/// Fields and containers as bytes and back.
class tst_BinaryForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void fieldsComeBack();
    void aFieldReadBeyondTheEndIsZero();
    void valuesComeBack();
    void listsComeBack();
    void onlyMaskedFieldsAreWritten();
    void pointersComeBackById();
    void nothingIsFollowedUntilTheEditEnds();
    void theSizeIsThatOfTheBytes_data();
    void theSizeIsThatOfTheBytes();
    void bytesThatEndTooSoonAreZeros();
    void aListEndsWithTheBytes();
    void elementsWithoutBytesAreNoMoreThanTheBytesThatFollow();
    void aStringEndsWithTheBytes();
    void whatNodesKnowOfEachOtherIsLeftOut();
    void aPointerToAnotherClassReadsAsNull();
    void volumesLoseNothing_data();
    void volumesLoseNothing();
};

void tst_BinaryForm::fieldsComeBack()
{
    MFString names, namesBack;
    names.push_back("a \"b\"");
    names.push_back("");
    SFVec3f place(Vec3f(1, 2, 1.f / 3)), placeBack;
    BinaryDataHandler bytes;
    names.copyToBin(bytes);
    place.copyToBin(bytes);
    QCOMPARE(bytes.getSize(), size_t(names.getBinSize() + place.getBinSize()));
    namesBack.copyFromBin(bytes);
    placeBack.copyFromBin(bytes);
    QCOMPARE(namesBack.getValues(), names.getValues());
    QCOMPARE(placeBack.getValue(), place.getValue());
}

void tst_BinaryForm::aFieldReadBeyondTheEndIsZero()
{
    BinaryDataHandler bytes;
    SFInt32 field(7);
    field.copyFromBin(bytes);
    QCOMPARE(field.getValue(), 0);
}

void tst_BinaryForm::valuesComeBack()
{
    const RefPtr<PointLightPtr> light(PointLight::create());
    const RefPtr<PointLightPtr> copy(PointLight::create());
    light->setPosition(Pnt3f(1, 2, 1.f / 3));
    light->setOn(false);
    BinaryDataHandler bytes;
    light->copyToBin(bytes, FieldBits::AllFields);
    copy->copyFromBin(bytes, FieldBits::AllFields);
    QCOMPARE(copy->getPosition(), light->getPosition());
    QVERIFY(!copy->getOn());
}

void tst_BinaryForm::listsComeBack()
{
    const RefPtr<StringAttributeMapPtr> map(StringAttributeMap::create());
    const RefPtr<StringAttributeMapPtr> copy(StringAttributeMap::create());
    map->setAttribute("a", "1 \"2\"");
    map->setAttribute("b", "");
    copy->setAttribute("gone", "x");
    BinaryDataHandler bytes;
    map->copyToBin(bytes, FieldBits::AllFields);
    copy->copyFromBin(bytes, FieldBits::AllFields);
    QCOMPARE(copy->getAttribute("a"), std::string("1 \"2\""));
    QVERIFY(copy->hasAttribute("b") && !copy->hasAttribute("gone"));
}

void tst_BinaryForm::onlyMaskedFieldsAreWritten()
{
    const RefPtr<PointLightPtr> light(PointLight::create());
    const RefPtr<PointLightPtr> copy(PointLight::create());
    light->setPosition(Pnt3f(1, 2, 3));
    light->setOn(false);
    BinaryDataHandler bytes;
    light->copyToBin(bytes, PointLight::OnFieldMask);
    QCOMPARE(bytes.getSize(), std::size_t(1));
    copy->copyFromBin(bytes, PointLight::OnFieldMask);
    QVERIFY(!copy->getOn());
    QCOMPARE(copy->getPosition(), Pnt3f(0, 0, 0));
}

void tst_BinaryForm::pointersComeBackById()
{
    const RefPtr<MaterialGroupPtr> group(MaterialGroup::create());
    const RefPtr<MaterialGroupPtr> copy(MaterialGroup::create());
    group->setMaterial(SimpleMaterial::create());
    BinaryDataHandler bytes;
    group->copyToBin(bytes, MaterialGroup::MaterialFieldMask);
    copy->copyFromBin(bytes, MaterialGroup::MaterialFieldMask);
    QVERIFY(copy->getMaterial() == group->getMaterial());
}

void tst_BinaryForm::nothingIsFollowedUntilTheEditEnds()
{
    const RefPtr<MaterialGroupPtr> group(MaterialGroup::create());
    const RefPtr<MaterialGroupPtr> copy(MaterialGroup::create());
    group->setMaterial(SimpleMaterial::create());
    BinaryDataHandler bytes;
    group->copyToBin(bytes, MaterialGroup::MaterialFieldMask);
    copy->copyFromBin(bytes, MaterialGroup::MaterialFieldMask);
    QCOMPARE(group->getMaterial().getRefCount(), 1);
    endEditCP(copy.get(), MaterialGroup::MaterialFieldMask);
    QCOMPARE(group->getMaterial().getRefCount(), 2);
}

void tst_BinaryForm::theSizeIsThatOfTheBytes_data()
{
    QTest::addColumn<QByteArray>("type");
    FieldContainerFactory *factory = FieldContainerFactory::the();
    for (auto entry = factory->beginTypes(); entry != factory->endTypes(); ++entry) {
        if (!entry->second->isAbstract()) {
            QTest::newRow(entry->second->getCName()) << QByteArray(entry->second->getCName());
        }
    }
}

void tst_BinaryForm::theSizeIsThatOfTheBytes()
{
    QFETCH(QByteArray, type);
    const RefPtr<FieldContainerPtr> container(
        FieldContainerFactory::the()->createFieldContainer(type.constData()));
    BinaryDataHandler bytes;
    container->copyToBin(bytes, FieldBits::AllFields);
    QCOMPARE(bytes.getSize(), std::size_t(container->getBinSize(FieldBits::AllFields)));
}

void tst_BinaryForm::bytesThatEndTooSoonAreZeros()
{
    const RefPtr<PointLightPtr> light(PointLight::create());
    light->setPosition(Pnt3f(1, 2, 3));
    BinaryDataHandler bytes;
    light->copyFromBin(bytes, FieldBits::AllFields);
    QCOMPARE(light->getPosition(), Pnt3f(0, 0, 0));
}

void tst_BinaryForm::aListEndsWithTheBytes()
{
    BinaryDataHandler bytes;
    bytes.putValue(UInt32(0xffffffff));
    bytes.putValue(Int32(7));
    MFInt32 list;
    list.copyFromBin(bytes);
    QCOMPARE(list.getSize(), UInt32(1));
    QCOMPARE(list[0], 7);
}

void tst_BinaryForm::elementsWithoutBytesAreNoMoreThanTheBytesThatFollow()
{
    BinaryDataHandler bytes;
    bytes.putValue(UInt32(20000000));
    bytes.putValue(UInt8(1));
    MFAttachmentMap maps;
    maps.copyFromBin(bytes);
    QCOMPARE(maps.getSize(), UInt32(1));
}

void tst_BinaryForm::aStringEndsWithTheBytes()
{
    BinaryDataHandler bytes;
    bytes.putValue(UInt32(0xffffffff));
    bytes.put("ab", 2);
    SFString text;
    text.copyFromBin(bytes);
    QCOMPARE(text.getValue(), std::string("ab"));
}

void tst_BinaryForm::whatNodesKnowOfEachOtherIsLeftOut()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    node->addChild(Node::create());
    node->setTravMask(5);
    BinaryDataHandler bytes;
    node->copyToBin(bytes, FieldBits::AllFields);
    {
        const NodeRefPtr copy(Node::create());
        copy->copyFromBin(bytes, FieldBits::AllFields);
        QCOMPARE(copy->getTravMask(), UInt32(5));
        QVERIFY(copy->getCore() == NullFC && copy->getNChildren() == 0);
    }
    QCOMPARE(node->getCore().getRefCount(), 1);
    QCOMPARE(node->getChild(0).getRefCount(), 1);
}

void tst_BinaryForm::aPointerToAnotherClassReadsAsNull()
{
    const RefPtr<PointLightPtr> light(PointLight::create());
    const RefPtr<MaterialGroupPtr> group(MaterialGroup::create());
    BinaryDataHandler bytes;
    bytes.putValue(light.get().getFieldContainerId());
    bytes.putValue(light.get().getFieldContainerId());
    group->copyFromBin(bytes, MaterialGroup::MaterialFieldMask);
    QVERIFY(group->getMaterial() == NullFC);
    light->copyFromBin(bytes, PointLight::BeaconFieldMask);
    QVERIFY(light->getBeacon() == NullFC);
}

void tst_BinaryForm::volumesLoseNothing_data()
{
    QTest::addColumn<bool>("isSphere");
    QTest::newRow("box") << false;
    QTest::newRow("sphere") << true;
}

void tst_BinaryForm::volumesLoseNothing()
{
    QFETCH(bool, isSphere);
    SFDynamicVolume field, back;
    field.getValue().setValue(isSphere ? "1 2 3 4" : "1 2 3 4 5 1e-9");
    field.getValue().setStatic();
    BinaryDataHandler bytes;
    field.copyToBin(bytes);
    back.copyFromBin(bytes);
    QCOMPARE(back.getValue().getType(), field.getValue().getType());
    QCOMPARE(back.getValue().getState(), field.getValue().getState());
    QCOMPARE(back.getValue().getMin(), field.getValue().getMin());
    QCOMPARE(back.getValue().getMax(), field.getValue().getMax());
}

QTEST_APPLESS_MAIN(tst_BinaryForm)
#include "tst_binaryform.moc"
