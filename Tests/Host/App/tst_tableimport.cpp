#include "kavoTableFixture.h"
#include "kavoTestLoad.h"

#include <kavoNodeUtils.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGThread.h>

#include <QTest>

#include <memory>

using kavoTestPairs::addNode;
using Pairs = std::vector<kavoTestPairs::Pair>;

class tst_TableImport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_table.reset(); }

    void anUneditedTableChangesNothing_data();
    void anUneditedTableChangesNothing();
    void anEditedCellIsWrittenBack();
    void theChangeIsAnnounced();
    void aRepeatedKeyIsWrittenByItsPlace();
    void aFilledCellAddsAPair();
    void aFilledCellAddsTheAttachmentToo();
    void anEmptiedCellEmptiesTheValue();
    void aMissingColumnLeavesItsValuesAlone();
    void columnsMayChangePlaces();
    void missingValuesCanBeFilled();
    void jsonLinesAreWrittenBack();
    void jsonLinesSayWhatToChange();

    void inAnotherSessionThePathFindsTheNode();
    void whenSiblingsChangedPlacesTheIdFindsTheNode();
    void anIdOfANodeElsewhereDoesNotCount();
    void rowsWithoutANodeAreReported();
    void aSecondRowOfANodeIsReported();
    void otherRowsAreWrittenAllTheSame();

    void realScenesComeBackUnchanged_data();
    void realScenesComeBackUnchanged();

private:
    static QByteArray row(const osg::NodePtr &node, const QByteArray &cells);

    std::unique_ptr<kavoTableFixture> m_table;
    osg::NodePtr m_mast, m_deck;
};

static const QByteArray header("id,path,name,type,color,size\n");

void tst_TableImport::init()
{
    m_table = std::make_unique<kavoTableFixture>();
    m_mast = addNode(m_table->root, "Mast", { { "size", "2" }, { "color", "red" } });
    m_deck = addNode(m_table->root, "Deck", { { "color", "blue" } });
}

// A line about that child of the root.
QByteArray tst_TableImport::row(const osg::NodePtr &node, const QByteArray &cells)
{
    const QByteArray name = kavoNodeUtils::getName(node);
    return QByteArray::number(node.getFieldContainerId()) + ",/Hull/" + name + ',' + name
        + ",Group," + cells + '\n';
}

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
    const auto report = m_table->import(header + row(m_mast, "green,2") + row(m_deck, "blue,"));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "green" } }));
    QCOMPARE(report.changedValues, 1);
    QCOMPARE(report.changedNodes, 1);
    QCOMPARE(report.unplacedRows, QStringList());
    QCOMPARE(report.summary(), QString("Changed values: 1, nodes: 1"));
}

void tst_TableImport::theChangeIsAnnounced()
{
    osg::Thread::getCurrentChangeList()->clearAll();
    m_table->import(header + row(m_mast, "green,2"));
    osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    QCOMPARE(int(changes->sizeChanged()), 1);
    QCOMPARE(
        changes->beginChanged()->first, kavoTestPairs::attachment(m_mast).getFieldContainerId());
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
    m_table->import(header + row(m_deck, "blue,3"));
    QVERIFY(kavoTestPairs::of(m_deck) == (Pairs { { "color", "blue" }, { "size", "3" } }));
}

void tst_TableImport::aFilledCellAddsTheAttachmentToo()
{
    const QByteArray id = QByteArray::number(osg::NodePtr(m_table->root).getFieldContainerId());
    m_table->import(header + id + ",/Hull,Hull,Group,,1\n");
    QVERIFY(kavoTestPairs::of(m_table->root) == (Pairs { { "size", "1" } }));
}

void tst_TableImport::anEmptiedCellEmptiesTheValue()
{
    QCOMPARE(m_table->import(header + row(m_mast, ",2")).changedValues, 1);
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "" } }));
}

void tst_TableImport::aMissingColumnLeavesItsValuesAlone()
{
    m_table->import("id,path,name,type,size\n" + row(m_mast, "9"));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "9" }, { "color", "red" } }));
}

void tst_TableImport::columnsMayChangePlaces()
{
    m_table->import("id,path,name,type,size,color\n" + row(m_mast, "9,green"));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "9" }, { "color", "green" } }));
}

void tst_TableImport::missingValuesCanBeFilled()
{
    kavoTestPairs::attachment(m_mast)->getValues().clear();
    m_table->import("id,path,name,type,color\n" + row(m_mast, "green"));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "" }, { "color", "green" } }));
}

void tst_TableImport::jsonLinesAreWrittenBack()
{
    m_table->options.format = kavoTableOptions::JsonLines;
    const QByteArray text = m_table->exported().replace("\"red\"", "\"'=r\xC3\xA4\"");
    QCOMPARE(m_table->import(text).changedValues, 1);
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "'=r\xC3\xA4" } }));
}

void tst_TableImport::jsonLinesSayWhatToChange()
{
    m_table->options.format = kavoTableOptions::JsonLines;
    const auto report = m_table->import(
        R"({"id":0,"path":"/Hull/Mast","values":{"color":"","size":["2","3"],"new":""}})");
    QCOMPARE(report.changedValues, 3);
    QVERIFY(kavoTestPairs::of(m_mast)
        == (Pairs { { "size", "2" }, { "color", "" }, { "new", "" }, { "size", "3" } }));
}

void tst_TableImport::inAnotherSessionThePathFindsTheNode()
{
    const QByteArray wrongId = QByteArray::number(m_deck.getFieldContainerId());
    m_table->import(header + wrongId + ",/Hull/Mast,Mast,Group,green,2\n");
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "green" } }));
    QVERIFY(kavoTestPairs::of(m_deck) == (Pairs { { "color", "blue" } }));
}

void tst_TableImport::whenSiblingsChangedPlacesTheIdFindsTheNode()
{
    const osg::NodePtr second = addNode(m_table->root, "Mast", { { "color", "white" } });
    const QByteArray id = QByteArray::number(second.getFieldContainerId());
    m_table->import("id,path,name,type,color\n" + id + ",/Hull/Mast,Mast,Group,black\n");
    QVERIFY(kavoTestPairs::of(second) == (Pairs { { "color", "black" } }));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "red" } }));
}

void tst_TableImport::anIdOfANodeElsewhereDoesNotCount()
{
    const QByteArray id = QByteArray::number(m_deck.getFieldContainerId());
    const auto report = m_table->import(header + id + ",/Hull/Sail,Sail,Group,green,\n");
    QCOMPARE(report.unplacedRows,
        QStringList { "line 2: '/Hull/Sail' (id " + id + "): the scene has no such node" });
    QVERIFY(kavoTestPairs::of(m_deck) == (Pairs { { "color", "blue" } }));
}

void tst_TableImport::rowsWithoutANodeAreReported()
{
    const auto report = m_table->import(header + "1,/Hull/A,,,,\n1,/Hull/B,,,,\n");
    QCOMPARE(report.unplacedRows,
        (QStringList { "line 2: '/Hull/A' (id 1): the scene has no such node",
            "line 3: '/Hull/B' (id 1): the scene has no such node" }));
    QCOMPARE(m_table->import(header).unplacedRows, QStringList());
}

void tst_TableImport::aSecondRowOfANodeIsReported()
{
    const QByteArray again = row(m_mast, "black,2");
    const auto report = m_table->import(header + row(m_mast, "green,2") + again);
    QCOMPARE(report.unplacedRows.size(), 1);
    QVERIFY(report.unplacedRows[0].startsWith("line 3: '/Hull/Mast'"));
    QVERIFY(report.unplacedRows[0].endsWith("line 2 is about the same node"));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "green" } }));
}

void tst_TableImport::otherRowsAreWrittenAllTheSame()
{
    const auto report = m_table->import(header + "1,/Hull/A,,,,\n" + row(m_mast, "green,2"));
    QCOMPARE(report.unplacedRows.size(), 1);
    QCOMPARE(report.changedValues, 1);
}

void tst_TableImport::realScenesComeBackUnchanged_data()
{
    QTest::addColumn<int>("rows");
    QTest::newRow("FBX/spider.fbx") << 21;
    QTest::newRow("FBX/huesitos.fbx") << 15;
    QTest::newRow("FBX/animation_with_skeleton.fbx") << 20;
    QTest::newRow("FBX/global_settings.fbx") << 6;
    QTest::newRow("FBX/cubes_with_names.fbx") << 4;
    QTest::newRow("FBX/cubes_with_outofrange_float.fbx") << 4;
    QTest::newRow("FBX/box_orphant_embedded_texture.fbx") << 1;
    QTest::newRow("FBX/maxPbrMaterial_metalRough.fbx") << 1;
}

void tst_TableImport::realScenesComeBackUnchanged()
{
    m_table->root = kavoTestLoad::open(QTest::currentDataTag());
    const QByteArray text = m_table->exported();
    QFETCH(int, rows);
    QCOMPARE(text.count("\r\n"), rows + 1);
    const auto report = m_table->import(text);
    QCOMPARE(report.unplacedRows, QStringList());
    QCOMPARE(report.changedValues, 0);
}

KAVO_TEST_MAIN(tst_TableImport)
#include "tst_tableimport.moc"
