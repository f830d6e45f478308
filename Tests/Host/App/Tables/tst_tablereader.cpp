#include "kavoTableFixture.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsvParser.h"
#include <kavoTestHost.h>

#include <QTest>

#include <memory>

using kavoTestPairs::addNode;
using Pairs = std::vector<kavoTestPairs::Pair>;

// Imports files that other programs have saved, and malformed files.
class tst_TableReader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_table.reset(); }

    void whatSpreadsheetsSaveIsRead_data();
    void whatSpreadsheetsSaveIsRead();
    void numbersLoseTheDecimalComma();
    void theGuardIsTakenAway();
    void aMalformedTableIsExplainedAndChangesNothing_data();
    void aMalformedTableIsExplainedAndChangesNothing();
    void malformedJsonLinesAreExplainedAndChangeNothing_data();
    void malformedJsonLinesAreExplainedAndChangeNothing();
    void aFileThatCannotBeReadIsExplained();
    void lineNumbersCountLinesWithinCells();

private:
    QByteArray row(const QByteArray &cells) const;
    QString errorOf(const QByteArray &text) const;

    std::unique_ptr<kavoTableFixture> m_table;
    osg::NodePtr m_mast;
};

static const QByteArray header("id,path,name,type,color,size\n");

void tst_TableReader::init()
{
    m_table = std::make_unique<kavoTableFixture>();
    m_mast = addNode(m_table->root, "Mast", { { "size", "2" }, { "color", "red" } });
}

// Returns a line of a table for the mast.
QByteArray tst_TableReader::row(const QByteArray &cells) const
{
    const QByteArray id = QByteArray::number(m_mast.getFieldContainerId());
    return id + ",/Hull/Mast,Mast,Group," + cells + '\n';
}

QString tst_TableReader::errorOf(const QByteArray &text) const
{
    try {
        m_table->import(text);
    } catch (const kavoTaskError &error) {
        return error.message();
    }
    return QString();
}

void tst_TableReader::whatSpreadsheetsSaveIsRead_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::newRow("CR LF") << QByteArray("id,path,name,type,color\r\n@,/Hull/Mast,,,pink\r\n");
    QTest::newRow("CR") << QByteArray("id,path,name,type,color\r@,/Hull/Mast,,,pink");
    QTest::newRow("blank lines") << QByteArray(
        "id,path,name,type,color\n\n@,/Hull/Mast,,,pink\n\n");
    QTest::newRow("semicolons") << QByteArray("id;path;name;type;color\n@;/Hull/Mast;;;pink\n");
    QTest::newRow("tabs") << QByteArray("id\tpath\tname\ttype\tcolor\n@\t/Hull/Mast\t\t\tpink\n");
    QTest::newRow("all quoted") << QByteArray("\"id\";\"path\";\"name\";\"type\";\"color\"\n"
                                              "\"@\";\"/Hull/Mast\";\"\";\"\";\"pink\"\n");
    QTest::newRow("byte order mark")
        << QByteArray("\xEF\xBB\xBFid,path,name,type,color\n@,/Hull/Mast,,,pink\n");
}

void tst_TableReader::whatSpreadsheetsSaveIsRead()
{
    QFETCH(QByteArray, table);
    const QByteArray id = QByteArray::number(m_mast.getFieldContainerId());
    const auto report = m_table->import(table.replace('@', id));
    QCOMPARE(report.unplacedRows, QStringList());
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "pink" } }));
}

void tst_TableReader::numbersLoseTheDecimalComma()
{
    m_table->options.decimalSeparator = ',';
    m_table->import(header + row("\"red, green\",\"-2,5\""));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "-2.5" }, { "color", "red, green" } }));
}

void tst_TableReader::theGuardIsTakenAway()
{
    m_table->import(header + row("'=red,''2"));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "'2" }, { "color", "=red" } }));
}

void tst_TableReader::aMalformedTableIsExplainedAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("rest");
    QTest::addColumn<QString>("reason");
    QTest::newRow("open quote") << QByteArray("1,/a,a,Group,\"x,\n")
                                << "line 3: a quote that is never closed";
    QTest::newRow("text behind a quote")
        << QByteArray("1,/a,a,Group,\"x\"y,\n") << "line 3: text behind a closing quote";
    QTest::newRow("quote within") << QByteArray("1,/a,a,Group,x\"y,\n")
                                  << "line 3: a quote within a cell that does not begin with one";
    QTest::newRow("short") << QByteArray("1,/a,a,Group,x\n") << "line 3: 5 cells instead of 6";
    QTest::newRow("long") << QByteArray("1,/a,a,Group,x,y,z\n") << "line 3: 7 cells instead of 6";
    QTest::newRow("id") << QByteArray("x1,/a,a,Group,,\n") << "line 3: 'x1' is not an id";
    QTest::newRow("encoding") << QByteArray("1,/a,a,Group,\xE4,\n") << "the text is not UTF-8";
}

void tst_TableReader::aMalformedTableIsExplainedAndChangesNothing()
{
    QFETCH(QByteArray, rest);
    QFETCH(QString, reason);
    QCOMPARE(errorOf(header + row("green,2") + rest),
        QString("Cannot import '%1': %2").arg(m_table->path(), reason));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "red" } }));
    const QString wrongHeader = "line 1: the columns id, path, name and type are not the first";
    QVERIFY(errorOf("id,path,type,name\n").endsWith(wrongHeader));
    QVERIFY(errorOf("x\n").endsWith(wrongHeader));
    QVERIFY(errorOf("\n").endsWith("line 1: the file is empty"));
}

void tst_TableReader::malformedJsonLinesAreExplainedAndChangeNothing_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no object") << QByteArray("[]") << "no values";
    QTest::newRow("no JSON") << QByteArray("{\"id\":tru}") << "illegal value";
    QTest::newRow("no values") << QByteArray(R"({"id":1,"path":"/a"})") << "no values";
    QTest::newRow("no id") << QByteArray(R"({"path":"/a","values":{}})") << "no id";
    QTest::newRow("broken id") << QByteArray(R"({"id":1.5,"path":"/a","values":{}})") << "no id";
    QTest::newRow("no path") << QByteArray(R"({"id":1,"values":{}})") << "a value that is no text";
    QTest::newRow("number") << QByteArray(R"({"id":1,"path":"/a","values":{"k":1}})")
                            << "a value that is no text";
}

void tst_TableReader::malformedJsonLinesAreExplainedAndChangeNothing()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    m_table->options.format = kavoTableOptions::JsonLines;
    const QByteArray good = R"({"id":0,"path":"/Hull/Mast","values":{"color":"green"}})";
    QCOMPARE(errorOf(good + "\n\n" + line + '\n'),
        QString("Cannot import '%1': line 3: %2").arg(m_table->path(), reason));
    QVERIFY(kavoTestPairs::of(m_mast) == (Pairs { { "size", "2" }, { "color", "red" } }));
}

void tst_TableReader::aFileThatCannotBeReadIsExplained()
{
    try {
        kavoTableImport::run(m_table->root, "/no/such/file.csv", m_table->options);
        QFAIL("no error");
    } catch (const kavoTaskError &error) {
        QCOMPARE(error.message(),
            QString("Cannot import '/no/such/file.csv': No such file or directory"));
    }
}

void tst_TableReader::lineNumbersCountLinesWithinCells()
{
    const std::string text = "a\n\"b\nc\"\r\n\nd\n";
    kavoCsvParser parser(text, ',');
    std::vector<std::string> cells;
    QList<int> lines;
    while (parser.readRow(cells))
        lines << parser.line();
    QCOMPARE(lines, (QList<int> { 1, 2, 5 }));
    QCOMPARE(cells, std::vector<std::string> { "d" });
}

KAVO_TEST_MAIN(tst_TableReader)
#include "tst_tablereader.moc"
