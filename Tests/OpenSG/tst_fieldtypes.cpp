#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGInt32Fields.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGStringFields.h>
#include <OpenSG/OSGTypeFactory.h>

#include <QtTest>

#include <memory>

class tst_FieldTypes : public QObject
{
    Q_OBJECT

private slots:
    void everyValueTypeHasBothFields_data();
    void everyValueTypeHasBothFields();
    void typesAreNumberedFromOneWithoutGap();
    void unknownFieldTypesAreNull();
    void aContentTypeIsNoFieldType();
    void fieldTypesAreCountedByTheFactory();
    void aSecondTypeOfANameGetsNumberZero();
    void aTypeThatGoesLeavesTheRegistry();
    void noTypeBaseIsDerivedFromAnother();
    void sameCppTypeDifferentFieldTypes();
    void setAbstrValueCopiesOnlyTheSameType();
    void anEmptyFieldOfTheSameTypeEmptiesAMultiField();
    void multiFieldsBehaveAsVectors();
    void boolListsHoldBits();
};

namespace {

void addRows(const char *contentName, const char *parent, const char *name)
{
    QTest::newRow(name) << QString(name) << QString(contentName) << QString(parent);
}

} // namespace

// A list of its own, not the table of the library: it pins the names.
void tst_FieldTypes::everyValueTypeHasBothFields_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("parent");

    addRows("bool", "IntegralType", "Bool");
    for (const char *name : { "Int8", "UInt8", "Int16", "UInt16", "Int32", "UInt32", "Int64",
             "UInt64", "Real32", "Real64", "VoidP" }) {
        addRows(name, "IntegralType", name);
    }
    addRows("string", "BaseType", "String");
    for (const char *name : { "Time", "Color3f", "Color4f", "Color3ub", "Color4ub", "DynamicVolume",
             "BitVector", "GLenum", "Plane", "Matrix", "Matrix4d", "Quaternion" }) {
        addRows(name, "BaseType", name);
    }
    for (const char *kind : { "Vec", "Pnt" }) {
        for (const char *size : { "2", "3", "4" }) {
            for (const char *suffix : { "ub", "b", "us", "s", "f", "d", "ld" }) {
                const QByteArray name = QByteArray(kind) + size + suffix;
                addRows(name, "BaseType", name);
            }
        }
    }
}

void tst_FieldTypes::everyValueTypeHasBothFields()
{
    QFETCH(QString, name);
    const std::pair<const char *, osg::FieldType::Cardinality> kinds[]
        = { { "SF", osg::FieldType::SINGLE_FIELD }, { "MF", osg::FieldType::MULTI_FIELD } };
    for (const auto &[prefix, cardinality] : kinds) {
        const QByteArray typeName = prefix + name.toLatin1();
        const std::unique_ptr<osg::Field> field(
            osg::FieldFactory::the().createField(typeName.constData()));
        QVERIFY(field);
        const osg::FieldType &type = field->getType();
        QCOMPARE(type.getCName(), typeName.constData());
        QCOMPARE(type.getCParentName(), "Field");
        QCOMPARE(field->getCardinality(), cardinality);
        QCOMPARE(type.getScanTypeId(), type.getId());
        QTEST(QString(field->getContentType().getCName()), "content");
        QTEST(QString(field->getContentType().getCParentName()), "parent");
        QCOMPARE(field->getSize(), osg::UInt32(cardinality == osg::FieldType::SINGLE_FIELD));
    }
}

void tst_FieldTypes::typesAreNumberedFromOneWithoutGap()
{
    const osg::TypeFactory &types = *osg::TypeFactory::the();
    QVERIFY(!types.findType(osg::UInt32(0)));
    for (osg::UInt32 id = 1; id <= types.getNumTypes(); ++id) {
        QVERIFY(types.findType(id));
        QCOMPARE(types.findType(id)->getId(), id);
        QCOMPARE(types.findType(types.findType(id)->getCName()), types.findType(id));
    }
}

void tst_FieldTypes::unknownFieldTypesAreNull()
{
    osg::FieldFactory &factory = osg::FieldFactory::the();
    QVERIFY(!factory.createField("SFNothing"));
    QVERIFY(!factory.createField(osg::UInt32(0)));
    QVERIFY(!osg::FieldFactory::getFieldType(osg::UInt32(1) << 30));
    QVERIFY(!factory.getFieldTypeName(0));
}

void tst_FieldTypes::aContentTypeIsNoFieldType()
{
    const osg::TypeBase *content = osg::TypeFactory::the()->findType("Vec3f");
    QVERIFY(content);
    QVERIFY(!osg::FieldFactory::getFieldType(content->getId()));
    QVERIFY(!osg::FieldFactory::getFieldType("Vec3f"));
}

void tst_FieldTypes::fieldTypesAreCountedByTheFactory()
{
    osg::UInt32 count = 0;
    for (osg::UInt32 id = 0; id <= osg::TypeFactory::the()->getNumTypes(); ++id) {
        count += osg::FieldFactory::the().getFieldTypeName(id) ? 1 : 0;
    }
    QCOMPARE(osg::FieldFactory::getNFieldTypes(), count);
    QVERIFY(count >= 136);
}

void tst_FieldTypes::aSecondTypeOfANameGetsNumberZero()
{
    osg::osgLog().setLogType(osg::LOG_NONE, true);
    {
        const osg::DataType twin("Vec3f", "BaseType");
        QCOMPARE(twin.getId(), osg::UInt32(0));
    }
    QCOMPARE(osg::TypeFactory::the()->findType("Vec3f"),
        static_cast<osg::TypeBase *>(&osg::FieldDataTraits<osg::Vec3f>::getType()));
}

void tst_FieldTypes::aTypeThatGoesLeavesTheRegistry()
{
    osg::UInt32 id = 0;
    {
        const osg::DataType passing("Passing", nullptr);
        id = passing.getId();
        QCOMPARE(osg::TypeFactory::the()->findType(id), &passing);
    }
    QVERIFY(!osg::TypeFactory::the()->findType(id));
    QVERIFY(!osg::TypeFactory::the()->findType("Passing"));
}

void tst_FieldTypes::noTypeBaseIsDerivedFromAnother()
{
    const osg::TypeBase &type = osg::SFInt32::getClassType();
    QVERIFY(!type.isDerivedFrom(type));
    QVERIFY(type == type);
    QVERIFY(type != osg::MFInt32::getClassType());
}

void tst_FieldTypes::sameCppTypeDifferentFieldTypes()
{
    QVERIFY(osg::SFTime::getClassType() != osg::SFReal64::getClassType());
    QVERIFY(osg::SFGLenum::getClassType() != osg::SFUInt32::getClassType());
    QVERIFY(osg::MFBitVector::getClassType() != osg::MFUInt64::getClassType());
}

void tst_FieldTypes::setAbstrValueCopiesOnlyTheSameType()
{
    osg::SFTime time(2.5);
    time.setAbstrValue(osg::SFReal64(7));
    QCOMPARE(time.getValue(), 2.5);
    time.setAbstrValue(osg::SFTime(7));
    QCOMPARE(time.getValue(), 7.);
}

void tst_FieldTypes::anEmptyFieldOfTheSameTypeEmptiesAMultiField()
{
    osg::MFString names;
    names.push_back("a");
    const std::unique_ptr<osg::Field> empty(
        osg::FieldFactory::the().createField(names.getType().getId()));
    names.setAbstrValue(*empty);
    QVERIFY(names.isEmpty());
}

void tst_FieldTypes::multiFieldsBehaveAsVectors()
{
    osg::MFInt32 field(2);
    field.push_back(5);
    field.insert(field.begin(), 9);
    QCOMPARE(field.getValues(), (osg::MFInt32::StorageType { 9, 0, 0, 5 }));
    QCOMPARE(field.find(5) - field.begin(), 3);
    QVERIFY(field.find(6) == field.end());
    field.erase(field.begin());
    field.resize(4, 1);
    field.setValue(7, 0);
    QCOMPARE(field.getValues(), (osg::MFInt32::StorageType { 7, 0, 5, 1 }));
    osg::MFInt32 other;
    other.swap(field);
    QVERIFY(field.empty());
    QCOMPARE(other.back(), 1);
}

void tst_FieldTypes::boolListsHoldBits()
{
    osg::MFBool field;
    field.push_back(true);
    field.addValue(false);
    field.setValue(true, 1);
    QVERIFY(field[1]);
    QCOMPARE(field.getSize(), osg::UInt32(2));
}

QTEST_APPLESS_MAIN(tst_FieldTypes)
#include "tst_fieldtypes.moc"
