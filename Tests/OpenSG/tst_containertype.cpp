#include "LogCapture.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGSFBaseTypes.h>

#include <QtTest>

using namespace osg;

/// Types that are not as they should be, and fields that come and go.
class tst_ContainerType : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void aTypeThatIsItsOwnAncestorIsReported();
    void idsOfAddedDescriptionsStay();
    void thereAreAsManyDescriptionsAsTheMaskHasBits();
};

namespace {

FieldDescription textDescription(const std::string &name)
{
    return FieldDescription(
        SFString::getClassType(), name.c_str(), 0, 0, false, FieldAccessMethod(nullptr));
}

} // namespace

void tst_ContainerType::aTypeThatIsItsOwnAncestorIsReported()
{
    const LogCapture log;
    FieldContainerType self("Self", "Self");
    FieldContainerType hen("Hen", "Egg");
    FieldContainerType egg("Egg", "Hen");
    QVERIFY(!FieldContainerFactory::the()->initializePendingTypes());
    QVERIFY(log.text.contains("WARNING:  Self lacks its parent Self\n"));
    QVERIFY(log.text.contains("WARNING:  Hen lacks its parent Egg\n"));
    QVERIFY(!hen.isInitialized() && !egg.isInitialized());
}

void tst_ContainerType::idsOfAddedDescriptionsStay()
{
    FieldContainerType open("OpenEnd", "Attachment", nullptr, nullptr, nullptr, nullptr, 0, true);
    FieldContainerFactory::the()->initializePendingTypes();
    QCOMPARE(open.addDescription(textDescription("first")), 3u);
    QCOMPARE(open.addDescription(textDescription("second")), 4u);
    QVERIFY(!open.subDescription(3));
    QVERIFY(open.subDescription(4));
    QVERIFY(!open.subDescription(4));
    QCOMPARE(open.addDescription(textDescription("third")), 4u);
    QCOMPARE(open.getFieldDescription(4)->getFieldId(), 4u);
}

void tst_ContainerType::thereAreAsManyDescriptionsAsTheMaskHasBits()
{
    FieldContainerType open("OpenWide", "Attachment", nullptr, nullptr, nullptr, nullptr, 0, true);
    FieldContainerFactory::the()->initializePendingTypes();
    for (UInt32 id = 3; id < 64; ++id) {
        QCOMPARE(open.addDescription(textDescription(std::to_string(id))), id);
    }
    QCOMPARE(open.getFieldDescription(63)->getFieldMask(), BitVector(1) << 63);
    QCOMPARE(open.addDescription(textDescription("one too many")), 0u);
}

QTEST_APPLESS_MAIN(tst_ContainerType)
#include "tst_containertype.moc"
