#include "kavoSampledEditor.h"
#include "kavoTreeRows.h"

#include <kavoTestHost.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

using namespace kavoTreeRows;

// Edits of list rows.
class tst_WriteLists : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aNumberListIsReplaced_data();
    void aNumberListIsReplaced();
    void anEmptyTextEmptiesANumberList();
    void theSummaryOfALongListIsNotWritten();
    void numbersTypedOverASummaryReplaceTheList();
    void listsOfOtherTypesStay_data();
    void listsOfOtherTypesStay();

private:
    std::unique_ptr<kavoSampledEditor> m_rows;
};

void tst_WriteLists::init()
{
    m_rows = std::make_unique<kavoSampledEditor>();
    m_rows->sampler()->texts.resize(1, "text");
    m_rows->sampler()->vectors.resize(1);
    m_rows->sampler()->reals.resize(150, 0.5f);
    m_rows->refresh();
    osg::Thread::getCurrentChangeList()->clearAll();
}

void tst_WriteLists::cleanup()
{
    m_rows.reset();
}

void tst_WriteLists::aNumberListIsReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("elements");
    QTest::newRow("separators") << "1, 2,,3"
                                << "1, 2, 3";
    QTest::newRow("blanks only") << " 4   5 "
                                 << "4, 5";
    QTest::newRow("unreadable part") << "1 x 3"
                                     << "1, 0, 3";
}

void tst_WriteLists::aNumberListIsReplaced()
{
    QFETCH(QString, text);
    m_rows->sampler()->uints.resize(7, 9);
    setValue(m_rows->editor(), "uints", text);
    std::string written;
    m_rows->sampler()->uints.getValueByStr(written);
    QTEST(QString::fromStdString(written), "elements");
    QCOMPARE(m_rows->sampler()->lastMask, osg::FieldSampler::maskOf("uints"));
}

void tst_WriteLists::anEmptyTextEmptiesANumberList()
{
    setValue(m_rows->editor(), "ints", "1 2");
    QCOMPARE(int(m_rows->sampler()->ints.size()), 2);
    setValue(m_rows->editor(), "ints", "");
    QCOMPARE(int(m_rows->sampler()->ints.size()), 0);
    QCOMPARE(m_rows->sampler()->changes, 2);
}

void tst_WriteLists::theSummaryOfALongListIsNotWritten()
{
    setValue(m_rows->editor(), "reals", "<type=Real32> <size = 2>");
    QCOMPARE(int(m_rows->sampler()->reals.size()), 150);
    QCOMPARE(m_rows->sampler()->changes, 0);
}

void tst_WriteLists::numbersTypedOverASummaryReplaceTheList()
{
    QCOMPARE(text(m_rows->editor(), "reals"), QString("<type=Real32> <size = 150>"));
    setValue(m_rows->editor(), "reals", "0.5, 1e-3");
    QCOMPARE(int(m_rows->sampler()->reals.size()), 2);
    QCOMPARE(m_rows->sampler()->reals[1], 1e-3f);
}

void tst_WriteLists::listsOfOtherTypesStay_data()
{
    QTest::addColumn<QString>("field");
    for (const char *name : { "texts", "vectors", "nodes" })
        QTest::newRow(name) << name;
}

void tst_WriteLists::listsOfOtherTypesStay()
{
    QFETCH(QString, field);
    setValue(m_rows->editor(), field, "1 2 3");
    QCOMPARE(m_rows->sampler()->changes, 0);
    QCOMPARE(int(osg::Thread::getCurrentChangeList()->sizeChanged()), 0);
    QCOMPARE(m_rows->sampler()->texts[0], std::string("text"));
    QVERIFY(m_rows->sampler()->vectors[0] == osg::Vec3f(0, 0, 0));
}

KAVO_TEST_MAIN(tst_WriteLists)
#include "tst_writelists.moc"
