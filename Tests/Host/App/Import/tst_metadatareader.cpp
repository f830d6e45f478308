#include "Import/kavoMetadataReader.h"
#include <kavoNodePtr.h>
#include <kavoTestHost.h>
#include <kavoTestPairs.h>

#include <QTest>
#include <assimp/scene.h>

#include <memory>

class tst_MetadataReader : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreWrittenWithoutLoss_data();
    void numbersAreWrittenWithoutLoss();
    void floatsHaveNoMoreDigitsThanTheyNeed();
};

namespace {

template <class Value> std::string textOf(const Value &value)
{
    const std::unique_ptr<aiMetadata, void (*)(aiMetadata *)> metadata(
        aiMetadata::Alloc(1), aiMetadata::Dealloc);
    metadata->Set(0, "k", value);
    const kavoNodePtr node(kavoTestPairs::addNode(osg::NullFC, "n"));
    kavoMetadataReader::attach(node, metadata.get());
    return kavoTestPairs::of(node).at(0).value;
}

} // namespace

void tst_MetadataReader::numbersAreWrittenWithoutLoss_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("few digits") << 0.1 << "0.1";
    QTest::newRow("whole") << 46186158000. << "46186158000";
    QTest::newRow("many digits") << 1234567.891 << "1234567.891";
    QTest::newRow("all digits") << 0.1 + 0.2 << "0.30000000000000004";
    QTest::newRow("small") << -1e-300 << "-1e-300";
}

void tst_MetadataReader::numbersAreWrittenWithoutLoss()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(QString::fromStdString(textOf(value)), text);
    QCOMPARE(text.toDouble(), value);
}

void tst_MetadataReader::floatsHaveNoMoreDigitsThanTheyNeed()
{
    QCOMPARE(textOf(0.1f), std::string("0.1"));
    QCOMPARE(textOf(16777217.f), std::string("16777216"));
    QCOMPARE(textOf(aiVector3D(1, 0.333333343f, -2.5f)), std::string("1 0.33333334 -2.5"));
}

KAVO_TEST_MAIN(tst_MetadataReader)
#include "tst_metadatareader.moc"
