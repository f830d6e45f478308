#include "kavoFileSizeLimit.h"
#include "kavoTableFixture.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoPathWalk.h"
#include <kavoTestHost.h>

#include <QDir>
#include <QTest>

#include <cerrno>
#include <memory>

using kavoTestPairs::addNode;

// Writes tables; tst_tableimport reads them.
class tst_TableExport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_table = std::make_unique<kavoTableFixture>(); }
    void cleanup() { m_table.reset(); }

    void aRowHoldsIdPathNameTypeAndValues();
    void nodesWithoutPairsHaveNoRow();
    void nodesThatAreNotFullyVisibleHaveNoRow();
    void aPartOfTheSceneKeepsItsPaths();
    void cellsAreQuotedIfNecessary_data();
    void cellsAreQuotedIfNecessary();
    void theDelimiterCanBeChosen();
    void theDelimiterIsANameOrACharacter_data();
    void theDelimiterIsANameOrACharacter();
    void numbersGetTheDecimalSeparator_data();
    void numbersGetTheDecimalSeparator();
    void formulasAreGuarded_data();
    void formulasAreGuarded();
    void theGuardCanBeLeftOut();
    void aByteOrderMarkIsWrittenOnRequest();
    void aRepeatedKeyGetsColumnsOfOneName();
    void missingValuesAreEmpty();
    void columnsAreChosenByPattern();
    void rowsAreFiltered_data();
    void rowsAreFiltered();
    void jsonLinesHoldTheSameValues();
    void theFileNameDecidesTheFormat();
    void siblingsWithTheSameNameHaveNumbers();
    void aTableThatCannotBeWrittenIsExplained();
    void aFailureInTheMiddleLeavesNothing();
    void cancelingLeavesNothing();

private:
    std::unique_ptr<kavoTableFixture> m_table;
};

void tst_TableExport::aRowHoldsIdPathNameTypeAndValues()
{
    const osg::NodePtr mast
        = addNode(m_table->root, "Mast", { { "size", "2" }, { "color", "red" } });
    const QByteArray id = QByteArray::number(mast.getFieldContainerId());
    QCOMPARE(m_table->exported(),
        "id,path,name,type,color,size\r\n" + id + ",/Hull/Mast,Mast,Group,red,2\r\n");
}

void tst_TableExport::nodesWithoutPairsHaveNoRow()
{
    addNode(m_table->root, "Deck");
    kavoTestPairs::attachment(addNode(m_table->root, "Sail", { { "k", "" } }))->getKeys().clear();
    QCOMPARE(m_table->exported(), QByteArray("id,path,name,type\r\n"));
}

void tst_TableExport::nodesThatAreNotFullyVisibleHaveNoRow()
{
    addNode(m_table->root, "Mast", { { "k", "1" } })->setTravMask(1);
    QCOMPARE(m_table->exported(), QByteArray("id,path,name,type\r\n"));
    m_table->options.takesAllNodes = true;
    QCOMPARE(m_table->cells(1), QByteArray("1"));
}

void tst_TableExport::aPartOfTheSceneKeepsItsPaths()
{
    addNode(m_table->root, "Mast");
    const osg::NodePtr second = addNode(m_table->root, "Mast");
    addNode(second, "Flag", { { "k", "1" } });
    kavoTableExport::run(second, m_table->path(), m_table->options);
    QFile file(m_table->path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains(",/Hull/Mast[2]/Flag,"));
}

void tst_TableExport::cellsAreQuotedIfNecessary_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("plain") << QByteArray("a b:c") << QByteArray("a b:c");
    QTest::newRow("semicolon") << QByteArray("a;=b") << QByteArray("\"a;=b\"");
    QTest::newRow("tab") << QByteArray("a\t=b") << QByteArray("\"a\t=b\"");
    QTest::newRow("delimiter") << QByteArray("a,b") << QByteArray("\"a,b\"");
    QTest::newRow("quote") << QByteArray("a\"b") << QByteArray("\"a\"\"b\"");
    QTest::newRow("carriage return") << QByteArray("a\rb") << QByteArray("\"a\rb\"");
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA4") << QByteArray("\xC3\xA4");
}

void tst_TableExport::cellsAreQuotedIfNecessary()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, cell);
    addNode(m_table->root, "Mast", { { "k", value.toStdString() } });
    QCOMPARE(m_table->cells(1), cell);
}

void tst_TableExport::theDelimiterCanBeChosen()
{
    addNode(m_table->root, "Mast", { { "k", "a,b" }, { "l", "a;b" } });
    QVERIFY(m_table->options.setDelimiter("semicolon"));
    QCOMPARE(m_table->cells(0), QByteArray("k;l"));
    QCOMPARE(m_table->cells(1), QByteArray("\"a,b\";\"a;b\""));
}

void tst_TableExport::theDelimiterIsANameOrACharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("delimiter");
    QTest::newRow("comma") << "comma" << QChar(',');
    QTest::newRow("semicolon") << "semicolon" << QChar(';');
    QTest::newRow("tab") << "tab" << QChar('\t');
    QTest::newRow("a character") << "|" << QChar('|');
    QTest::newRow("a quote") << "\"" << QChar();
    QTest::newRow("a line end") << "\n" << QChar();
    QTest::newRow("not ASCII") << QString(QChar(0xE4)) << QChar();
    QTest::newRow("two characters") << "::" << QChar();
    QTest::newRow("nothing") << "" << QChar();
}

void tst_TableExport::theDelimiterIsANameOrACharacter()
{
    QFETCH(QString, text);
    QFETCH(QChar, delimiter);
    QCOMPARE(m_table->options.setDelimiter(text), !delimiter.isNull());
    QCOMPARE(QChar(m_table->options.delimiter), delimiter.isNull() ? QChar(',') : delimiter);
}

void tst_TableExport::numbersGetTheDecimalSeparator_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("decimal") << QByteArray("1.5") << QByteArray("1,5");
    QTest::newRow("negative") << QByteArray("-0.25") << QByteArray("-0,25");
    QTest::newRow("exponent") << QByteArray("+1.e-10") << QByteArray("+1,e-10");
    QTest::newRow("whole") << QByteArray("-12") << QByteArray("-12");
    QTest::newRow("version") << QByteArray("1.2.3") << QByteArray("1.2.3");
    QTest::newRow("point") << QByteArray(".") << QByteArray(".");
    QTest::newRow("vector") << QByteArray("1.5 2.5") << QByteArray("1.5 2.5");
    QTest::newRow("no number with comma") << QByteArray("1,5") << QByteArray("\"'1,5\"");
}

void tst_TableExport::numbersGetTheDecimalSeparator()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, cell);
    m_table->options.setDelimiter("semicolon");
    m_table->options.decimalSeparator = ',';
    addNode(m_table->root, "Mast", { { "k", value.toStdString() } });
    QCOMPARE(m_table->cells(1), cell);
}

void tst_TableExport::formulasAreGuarded_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("equals sign") << QByteArray("=1+1") << QByteArray("'=1+1");
    QTest::newRow("plus") << QByteArray("+A1") << QByteArray("'+A1");
    QTest::newRow("minus") << QByteArray("-1+cmd|'/C x'") << QByteArray("'-1+cmd|'/C x'");
    QTest::newRow("at sign") << QByteArray("@SUM(A1)") << QByteArray("'@SUM(A1)");
    QTest::newRow("tab") << QByteArray("\t=1") << QByteArray("\"'\t=1\"");
    QTest::newRow("newline") << QByteArray("\n=1") << QByteArray("\"'");
    QTest::newRow("apostrophe") << QByteArray("'a") << QByteArray("''a");
    QTest::newRow("negative number") << QByteArray("-1.5e3") << QByteArray("-1.5e3");
    QTest::newRow("later") << QByteArray("a=1") << QByteArray("a=1");
}

void tst_TableExport::formulasAreGuarded()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, cell);
    addNode(m_table->root, "Mast", { { "k", value.toStdString() } });
    QCOMPARE(m_table->cells(1), cell);
}

void tst_TableExport::theGuardCanBeLeftOut()
{
    addNode(m_table->root, "Mast", { { "=k", "=1+1" } });
    QCOMPARE(m_table->cells(0), QByteArray("'=k"));
    m_table->options.guardsFormulas = false;
    QCOMPARE(m_table->cells(0), QByteArray("=k"));
    QCOMPARE(m_table->cells(1), QByteArray("=1+1"));
}

void tst_TableExport::aByteOrderMarkIsWrittenOnRequest()
{
    QVERIFY(m_table->exported().startsWith("id"));
    m_table->options.startsWithByteOrderMark = true;
    QVERIFY(m_table->exported().startsWith("\xEF\xBB\xBFid"));
}

void tst_TableExport::aRepeatedKeyGetsColumnsOfOneName()
{
    addNode(m_table->root, "Mast", { { "k", "1" }, { "l", "2" }, { "k", "3" } });
    addNode(m_table->root, "Deck", { { "k", "4" } });
    QCOMPARE(m_table->cells(0), QByteArray("k,k,l"));
    QCOMPARE(m_table->cells(1), QByteArray("1,3,2"));
    QCOMPARE(m_table->cells(2), QByteArray("4,,"));
}

void tst_TableExport::missingValuesAreEmpty()
{
    const osg::NodePtr mast = addNode(m_table->root, "Mast", { { "k", "1" }, { "l", "2" } });
    kavoTestPairs::attachment(mast)->getValues().resize(1);
    QCOMPARE(m_table->cells(1), QByteArray("1,"));
}

void tst_TableExport::columnsAreChosenByPattern()
{
    addNode(m_table->root, "Mast", { { "mass/dry", "1" }, { "massive", "2" }, { "Mass", "3" } });
    m_table->options.keys = kavoPatterns("mass/*;x");
    QCOMPARE(m_table->cells(0), QByteArray("mass/dry"));
    QCOMPARE(m_table->cells(1), QByteArray("1"));
}

void tst_TableExport::rowsAreFiltered_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("types");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QByteArray>("rows");
    QTest::newRow("not at all") << ""
                                << ""
                                << "" << QByteArray("12");
    QTest::newRow("by name") << "M?st"
                             << ""
                             << "" << QByteArray("1");
    QTest::newRow("by one of two names") << "Mast;Deck"
                                         << ""
                                         << "" << QByteArray("12");
    QTest::newRow("by type") << ""
                             << "Trans*"
                             << "" << QByteArray();
    QTest::newRow("by another type") << ""
                                     << "Group"
                                     << "" << QByteArray("12");
    QTest::newRow("by key") << ""
                            << ""
                            << "l" << QByteArray("2");
    QTest::newRow("by all") << "Mast"
                            << "Group"
                            << "l" << QByteArray();
}

void tst_TableExport::rowsAreFiltered()
{
    QFETCH(QString, names);
    QFETCH(QString, types);
    QFETCH(QString, keys);
    addNode(m_table->root, "Mast", { { "k", "1" } });
    addNode(m_table->root, "Deck", { { "k", "2" }, { "l", "" } });
    m_table->options.nodeNames = kavoPatterns(names);
    m_table->options.coreTypes = kavoPatterns(types);
    m_table->options.nodeKeys = kavoPatterns(keys);
    m_table->options.keys = kavoPatterns("k");
    QTEST(m_table->cells(1) + m_table->cells(2), "rows");
}

void tst_TableExport::jsonLinesHoldTheSameValues()
{
    const osg::NodePtr mast = addNode(m_table->root, "Mast",
        { { "k", "=\"\n" }, { "l", "1.5" }, { "k", "\xC3\xA4" }, { "m", "" } });
    addNode(m_table->root, "Deck", { { "l", "2" } });
    m_table->options.format = kavoTableOptions::JsonLines;
    const QList<QByteArray> lines = m_table->exported().split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0],
        QByteArray("{\"id\":" + QByteArray::number(mast.getFieldContainerId())
            + ",\"name\":\"Mast\",\"path\":\"/Hull/Mast\",\"type\":\"Group\","
              "\"values\":{\"k\":[\"=\\\"\\n\",\"\xC3\xA4\"],\"l\":\"1.5\",\"m\":\"\"}}"));
    QVERIFY(lines[1].endsWith("\"values\":{\"l\":\"2\"}}"));
}

void tst_TableExport::theFileNameDecidesTheFormat()
{
    QCOMPARE(kavoTableOptions::formatOf("a.JSONL"), kavoTableOptions::JsonLines);
    QCOMPARE(kavoTableOptions::formatOf("jsonl.csv"), kavoTableOptions::Csv);
    QCOMPARE(kavoTableOptions::formatOf("a"), kavoTableOptions::Csv);
}

void tst_TableExport::siblingsWithTheSameNameHaveNumbers()
{
    for (const char *name : { "Oar", "Mast", "Oar", "Oar" })
        addNode(m_table->root, name);
    kavoPathWalk walk(m_table->root);
    QByteArray paths;
    while (walk.next())
        paths += QByteArray::fromStdString(walk.path()) + ' ';
    QCOMPARE(paths, QByteArray("/Hull /Hull/Oar /Hull/Mast /Hull/Oar[2] /Hull/Oar[3] "));
}

void tst_TableExport::aTableThatCannotBeWrittenIsExplained()
{
    try {
        kavoTableExport::run(m_table->root, "/no/such/folder/a.csv", m_table->options);
        QFAIL("no error");
    } catch (const kavoTaskError &error) {
        QCOMPARE(error.message(),
            QString("Cannot write '/no/such/folder/a.csv': No such file or directory"));
    }
}

void tst_TableExport::aFailureInTheMiddleLeavesNothing()
{
    addNode(m_table->root, "Mast", { { "k", std::string(3 << 20, 'x') } });
    const kavoFileSizeLimit limit(1 << 20);
    try {
        m_table->exported();
        QFAIL("no error");
    } catch (const kavoTaskError &error) {
        QVERIFY(error.message().endsWith(qt_error_string(EFBIG)));
    }
    QVERIFY(QDir(m_table->folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void tst_TableExport::cancelingLeavesNothing()
{
    for (int i = 0; i < 3000; ++i)
        addNode(m_table->root, nullptr, { { "k", "1" } });
    int calls = 0;
    const auto cancel = [&](int) { return ++calls < 5; }; // while the rows are written
    QVERIFY(!kavoTableExport::run(m_table->root, m_table->path(), m_table->options, cancel));
    QCOMPARE(calls, 5);
    QVERIFY(QDir(m_table->folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

KAVO_TEST_MAIN(tst_TableExport)
#include "tst_tableexport.moc"
