#include "kavoTableFixture.h"

#include "Tables/kavoExportArguments.h"
#include <kavoConsoleCapture.h>
#include <kavoTestHost.h>

#include <QTest>

#include <memory>

using kavoTestPairs::addNode;

class tst_ExportArguments : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void nothingAsksForNothing();
    void wrongValuesAreExplained_data();
    void wrongValuesAreExplained();
    void valuePairsAreExported();
    void aPartOfTheSceneIsExported();
    void optionsShapeTheTable();
    void theOptionOrTheFileNameDecidesTheFormat();
    void theImportComesFirst();
    void unplacedRowsAreAFailureButExportsStillRun();
    void fileNamesWithPercentSignsAreReportedUnchanged();

private:
    static kavoExportArguments parse(const QStringList &arguments);
    bool run(const QStringList &arguments) const;
    QByteArray written(const QString &name) const;

    std::unique_ptr<kavoTableFixture> m_table;
    osg::NodePtr m_mast;
};

void tst_ExportArguments::init()
{
    m_table = std::make_unique<kavoTableFixture>();
    m_mast = addNode(m_table->root, "Mast", { { "color", "red" }, { "size", "1.5" } });
}

kavoExportArguments tst_ExportArguments::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOptions(kavoExportArguments::options());
    parser.parse(QStringList { "kavo" } + arguments);
    return kavoExportArguments(parser);
}

bool tst_ExportArguments::run(const QStringList &arguments) const
{
    const kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    return parse(arguments).run(m_table->root, m_table->root);
}

QByteArray tst_ExportArguments::written(const QString &name) const
{
    QFile file(m_table->path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

void tst_ExportArguments::nothingAsksForNothing()
{
    QVERIFY(!parse({}).areJobs());
    QVERIFY(!parse({ "--all-nodes", "--table-bom" }).areJobs());
    QCOMPARE(parse({}).error(), QString());
}

void tst_ExportArguments::wrongValuesAreExplained_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("option");
    QTest::newRow("no file") << QStringList { "--export-table", "" } << "--export-table";
    QTest::newRow("format") << QStringList { "--table-format", "xls" } << "--table-format";
    QTest::newRow("delimiter") << QStringList { "--table-delimiter", "::" } << "--table-delimiter";
    QTest::newRow("decimal") << QStringList { "--table-decimal", "." } << "--table-decimal";
    for (const char *option :
        { "--table-columns", "--table-names", "--table-types", "--table-keys" })
        QTest::newRow(option) << QStringList { option, "a;[abc" } << option + QString(": '[abc'");
}

void tst_ExportArguments::wrongValuesAreExplained()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, option);
    QVERIFY2(parse(arguments).error().contains(option), qPrintable(parse(arguments).error()));
}

void tst_ExportArguments::valuePairsAreExported()
{
    m_mast->setTravMask(1);
    run({ "--export-value-pairs", m_table->path("visible.csv") });
    QCOMPARE(written("visible.csv"), QByteArray("nodes\\keys,\n"));
    run({ "--export-value-pairs", m_table->path("all.csv"), "--all-nodes" });
    QCOMPARE(written("all.csv"), QByteArray("nodes\\keys,color,size,\nHull,,,\nMast,red,1.5,\n"));
}

void tst_ExportArguments::aPartOfTheSceneIsExported()
{
    const kavoConsoleCapture output(kavoConsoleCapture::StandardOutput);
    parse({ "--export-value-pairs", m_table->path("a.csv") }).run(m_table->root, m_mast);
    QCOMPARE(written("a.csv"), QByteArray("nodes\\keys,color,size,\nMast,red,1.5,\n"));
}

void tst_ExportArguments::optionsShapeTheTable()
{
    addNode(m_table->root, "Deck", { { "size", "=2" } });
    run({ "--export-table", m_table->path("t.csv"), "--table-bom", "--table-delimiter", "semicolon",
        "--table-decimal", "comma", "--table-columns", "s*", "--table-names", "Mast;Deck",
        "--table-types", "Group", "--table-keys", "size", "--table-no-formula-guard" });
    const QByteArray table = written("t.csv");
    QVERIFY(table.startsWith("\xEF\xBB\xBFid;path;name;type;size\r\n"));
    QVERIFY(table.contains(";/Hull/Mast;Mast;Group;1,5\r\n"));
    QVERIFY(table.endsWith(";/Hull/Deck;Deck;Group;=2\r\n"));
}

void tst_ExportArguments::theOptionOrTheFileNameDecidesTheFormat()
{
    run({ "--export-table", m_table->path("t.jsonl") });
    QVERIFY(written("t.jsonl").startsWith('{'));
    run({ "--export-table", m_table->path("t.jsonl"), "--table-format", "csv" });
    QVERIFY(written("t.jsonl").startsWith("id,"));
    run({ "--export-table", m_table->path("t.csv"), "--table-format", "jsonl" });
    QVERIFY(written("t.csv").startsWith('{'));
}

void tst_ExportArguments::theImportComesFirst()
{
    const QString file = m_table->path("t.csv");
    run({ "--export-table", file });
    const QByteArray edited = written("t.csv").replace("red", "green");
    QFile table(file);
    QVERIFY(table.open(QIODevice::WriteOnly) && table.write(edited) == edited.size());
    table.close();
    run({ "--import-table", file, "--export-value-pairs", m_table->path("p.csv") });
    QVERIFY(written("p.csv").endsWith("Mast,green,1.5,\n"));
}

void tst_ExportArguments::unplacedRowsAreAFailureButExportsStillRun()
{
    const QString file = m_table->path("t.csv");
    QFile table(file);
    QVERIFY(table.open(QIODevice::WriteOnly) && table.write("id,path,name,type\n7,/Sail,,\n") > 0);
    table.close();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!run({ "--import-table", file, "--export-value-pairs", m_table->path("p.csv") }));
    QVERIFY(errors.text().contains("line 2: '/Sail' (id 7): the scene has no such node"));
    QVERIFY(written("p.csv").endsWith("Mast,red,1.5,\n"));
}

void tst_ExportArguments::fileNamesWithPercentSignsAreReportedUnchanged()
{
    const QString file = m_table->path("sales %2.csv");
    QFile table(file);
    QVERIFY(table.open(QIODevice::WriteOnly) && table.write("id,path,name,type\n7,/Sail,,\n") > 0);
    table.close();
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    run({ "--import-table", file });
    QVERIFY(errors.text().contains("%2.csv' without a place in the scene: 1\n"));
}

KAVO_TEST_MAIN(tst_ExportArguments)
#include "tst_exportarguments.moc"
