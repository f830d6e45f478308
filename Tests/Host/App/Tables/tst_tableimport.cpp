#include "kavoShipFixture.h"
#include "kavoTestLoad.h"

#include <kavoTestHost.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGThread.h>

#include <QDirIterator>
#include <QTest>

#include <memory>

using kavoTestPairs::addNode;
using Ship = kavoShipFixture;
using Pairs = std::vector<kavoTestPairs::Pair>;

class tst_TableImport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_table = std::make_unique<kavoShipFixture>(); }
    void cleanup() { m_table.reset(); }

    void anUneditedTableChangesNothing_data();
    void anUneditedTableChangesNothing();
    void anEditedCellIsWrittenBack();
    void theChangeIsAnnounced();
    void aRepeatedKeyIsWrittenByItsPlace();
    void aFilledCellAddsAPair();
    void aFilledCellMovesValuesWithoutAKeyBack();
    void aFilledCellAddsTheAttachmentToo();
    void anEmptiedCellEmptiesTheValue();
    void aMissingColumnLeavesItsValuesAlone();
    void columnsMayChangePlaces();
    void missingValuesCanBeFilled();
    void jsonLinesAreWrittenBack();
    void jsonLinesChangeOnlyTheValuesTheyHold();

    void cancelingChangesNothing_data();
    void cancelingChangesNothing();

    void realScenesComeBackUnchanged_data();
    void realScenesComeBackUnchanged();

private:
    std::unique_ptr<kavoShipFixture> m_table;
};

void tst_TableImport::anUneditedTableChangesNothing_data()
{
    QTest::addColumn<QString>("delimiter");
    QTest::addColumn<char>("decimal");
    QTest::addColumn<bool>("guards");
    QTest::addColumn<bool>("isJson");
    QTest::newRow("CSV") << "comma" << '.' << true << false;
    QTest::newRow("CSV of a German desktop") << "semicolon" << ',' << true << false;
    QTest::newRow("CSV without guard") << "tab" << ',' << false << false;
    QTest::newRow("JSON Lines") << "comma" << '.' << true << true;
}

void tst_TableImport::anUneditedTableChangesNothing()
{
    QFETCH(QString, delimiter);
    m_table->options.setDelimiter(delimiter);
    QFETCH(char, decimal);
    m_table->options.decimalSeparator = decimal;
    QFETCH(bool, guards);
    m_table->options.guardsFormulas = guards;
    QFETCH(bool, isJson);
    m_table->options.format = isJson ? kavoTableOptions::JsonLines : kavoTableOptions::Csv;
    const Pairs odd { { "=k", "=1" }, { "k", "'a" }, { "k", "1,5" }, { "k", "1.5" }, { "", "" },
        { "n", "a\r\nb\"c\";\t" }, { "id", "5" }, { "\xE4", "\xE4" } };
    const osg::NodePtr node = addNode(m_table->root, "=odd/\xE4\n", odd);
    const kavoTableImport::Report report = m_table->import(m_table->exported());
    QCOMPARE(report.unplacedRows, QStringList());
    QCOMPARE(report.changedValues, 0);
    QVERIFY(kavoTestPairs::of(node) == odd);
}

void tst_TableImport::anEditedCellIsWrittenBack()
{
    const auto report = m_table->import(
        Ship::header + Ship::row(m_table->mast, "green,2") + Ship::row(m_table->deck, "blue,"));
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "green" } }));
    QCOMPARE(report.changedValues, 1);
    QCOMPARE(report.changedNodes, 1);
    QCOMPARE(report.unplacedRows, QStringList());
    QCOMPARE(report.summary(), QString("Changed values: 1, nodes: 1"));
}

void tst_TableImport::theChangeIsAnnounced()
{
    osg::Thread::getCurrentChangeList()->clearAll();
    m_table->import(Ship::header + Ship::row(m_table->mast, "green,2"));
    osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    QCOMPARE(int(changes->sizeChanged()), 1);
    QCOMPARE(changes->beginChanged()->first,
        kavoTestPairs::attachment(m_table->mast).getFieldContainerId());
    QCOMPARE(changes->beginChanged()->second, osg::ValuePairBase::ValuesFieldMask);
}

void tst_TableImport::aRepeatedKeyIsWrittenByItsPlace()
{
    const osg::NodePtr oar
        = addNode(m_table->root, "Oar", { { "k", "1" }, { "x", "" }, { "k", "2" } });
    const QByteArray id = QByteArray::number(oar.getFieldContainerId());
    m_table->import("id,path,name,type,k,k\n" + id + ",/Hull/Oar,Oar,Group,1,3\n");
    QVERIFY(kavoTestPairs::of(oar) == (Pairs { { "k", "1" }, { "x", "" }, { "k", "3" } }));
}

void tst_TableImport::aFilledCellAddsAPair()
{
    m_table->import(Ship::header + Ship::row(m_table->deck, "blue,3"));
    QVERIFY(kavoTestPairs::of(m_table->deck) == (Pairs { { "color", "blue" }, { "size", "3" } }));
}

void tst_TableImport::aFilledCellMovesValuesWithoutAKeyBack()
{
    kavoTestPairs::attachment(m_table->deck)->getValues().push_back("surplus");
    m_table->import(Ship::header + Ship::row(m_table->deck, "blue,3"));
    const std::vector<std::string> values { "blue", "3", "surplus" };
    QCOMPARE(kavoTestPairs::attachment(m_table->deck)->getValues().getValues(), values);
}

void tst_TableImport::aFilledCellAddsTheAttachmentToo()
{
    const QByteArray id = QByteArray::number(osg::NodePtr(m_table->root).getFieldContainerId());
    m_table->import(Ship::header + id + ",/Hull,Hull,Group,,1\n");
    QVERIFY(kavoTestPairs::of(m_table->root) == (Pairs { { "size", "1" } }));
}

void tst_TableImport::anEmptiedCellEmptiesTheValue()
{
    QCOMPARE(m_table->import(Ship::header + Ship::row(m_table->mast, ",2")).changedValues, 1);
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "" } }));
}

void tst_TableImport::aMissingColumnLeavesItsValuesAlone()
{
    m_table->import("id,path,name,type,size\n" + Ship::row(m_table->mast, "9"));
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "9" }, { "color", "red" } }));
}

void tst_TableImport::columnsMayChangePlaces()
{
    m_table->import("id,path,name,type,size,color\n" + Ship::row(m_table->mast, "9,green"));
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "9" }, { "color", "green" } }));
}

void tst_TableImport::missingValuesCanBeFilled()
{
    kavoTestPairs::attachment(m_table->mast)->getValues().clear();
    m_table->import("id,path,name,type,color\n" + Ship::row(m_table->mast, "green"));
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "" }, { "color", "green" } }));
}

void tst_TableImport::jsonLinesAreWrittenBack()
{
    m_table->options.format = kavoTableOptions::JsonLines;
    const QByteArray text = m_table->exported().replace("\"red\"", "\"'=r\xC3\xA4\"");
    QCOMPARE(m_table->import(text).changedValues, 1);
    QVERIFY(kavoTestPairs::of(m_table->mast)
        == (Pairs { { "size", "2" }, { "color", "'=r\xC3\xA4" } }));
}

void tst_TableImport::jsonLinesChangeOnlyTheValuesTheyHold()
{
    m_table->options.format = kavoTableOptions::JsonLines;
    const auto report = m_table->import(
        R"({"id":0,"path":"/Hull/Mast","values":{"color":"","size":["2","3"],"new":""}})");
    QCOMPARE(report.changedValues, 3);
    QVERIFY(kavoTestPairs::of(m_table->mast)
        == (Pairs { { "size", "2" }, { "color", "" }, { "new", "" }, { "size", "3" } }));
}

void tst_TableImport::cancelingChangesNothing_data()
{
    QTest::addColumn<int>("callsAllowed");
    QTest::newRow("while nodes are looked for") << 1;
    QTest::newRow("while values are compared") << 4;
}

void tst_TableImport::cancelingChangesNothing()
{
    for (int i = 0; i < 3000; ++i)
        addNode(m_table->root, nullptr, { { "color", "red" } });
    m_table->exported();
    kavoTestPairs::attachment(m_table->mast)->getValues()[1]
        = "blue"; // the table would make it red
    QFETCH(int, callsAllowed);
    int calls = 0;
    const auto monitor = [&](int) { return ++calls <= callsAllowed; };
    QVERIFY(!kavoTableImport::run(m_table->root, m_table->path(), m_table->options, monitor));
    QCOMPARE(calls, callsAllowed + 1);
    QVERIFY(kavoTestPairs::of(m_table->mast) == (Pairs { { "size", "2" }, { "color", "blue" } }));
}

// All FBX files of the test models, except one that cannot be read.
void tst_TableImport::realScenesComeBackUnchanged_data()
{
    QTest::addColumn<QString>("file");
    const QDir models(KAVO_TEST_MODELS);
    QDirIterator files(
        models.filePath("FBX"), { "*.fbx" }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = models.relativeFilePath(files.next());
        if (file != "FBX/transparentTest.fbx")
            QTest::newRow(qPrintable(file)) << file;
    }
}

void tst_TableImport::realScenesComeBackUnchanged()
{
    QFETCH(QString, file);
    m_table->root = kavoTestLoad::open(file);
    QVERIFY(m_table->root != osg::NullFC);
    int rows = 0;
    for (const osg::NodePtr &node : kavoTestLoad::allNodes(m_table->root))
        rows += !kavoTestPairs::of(node).empty();
    const QByteArray text = m_table->exported();
    QCOMPARE(text.count("\r\n"), rows + 1);
    const auto report = m_table->import(text);
    QCOMPARE(report.unplacedRows, QStringList());
    QCOMPARE(report.changedValues, 0);
}

KAVO_TEST_MAIN(tst_TableImport)
#include "tst_tableimport.moc"
