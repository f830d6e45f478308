#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// Runs the application without a display, as scripts do.
class tst_KavoExport : public QObject
{
    Q_OBJECT

private slots:
    void valuePairsAndTableAreWritten();
    void aPartIsWritten();
    void aFileThatCannotBeWrittenExitsWithOne();
    void anEditedTableIsImported();
    void rowsWithoutAPlaceExitWithOneAfterAllOtherJobs();
    void wrongOptionsExitWithTwo();

private:
    struct Result
    {
        int exitCode;
        QByteArray output, errors;
    };
    Result run(const QStringList &arguments) const;
    QByteArray written(const QString &name) const;

    QTemporaryDir m_folder;
};

static const QString spider = QStringLiteral(KAVO_TEST_MODELS "/FBX/spider.fbx");

tst_KavoExport::Result tst_KavoExport::run(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_folder.path());
    for (const char *variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        environment.remove(variable);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.start(KAVO_EXECUTABLE, arguments);
    const bool ended = process.waitForFinished(60000);
    const bool clean = ended && process.exitStatus() == QProcess::NormalExit;
    return { clean ? process.exitCode() : -1, process.readAllStandardOutput(),
        process.readAllStandardError() };
}

QByteArray tst_KavoExport::written(const QString &name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

void tst_KavoExport::valuePairsAndTableAreWritten()
{
    const Result result
        = run({ spider, "--export-value-pairs", "pairs.csv", "--export-table", "table.csv" });
    QVERIFY2(result.exitCode == 0, result.errors);
    QVERIFY(written("pairs.csv").startsWith("nodes\\keys,AspectH,AspectW,"));
    QCOMPARE(written("table.csv").count("\r\n"), 22);
    QVERIFY(result.output.contains("ValuePairCSVCreator::ValuePairCSVCreator\n"));
}

void tst_KavoExport::aPartIsWritten()
{
    const Result result
        = run({ spider, "--select", "Camera", "--all-nodes", "--export-value-pairs", "part.csv" });
    QVERIFY2(result.exitCode == 0, result.errors);
    QCOMPARE(written("part.csv").count('\n'), 2);
    QVERIFY(written("part.csv").contains("\nCamera,"));
}

void tst_KavoExport::aFileThatCannotBeWrittenExitsWithOne()
{
    const Result result = run({ spider, "--export-value-pairs", "no/such.csv" });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains("Cannot write 'no/such.csv': No such file or directory"),
        result.errors);
}

void tst_KavoExport::anEditedTableIsImported()
{
    QCOMPARE(run({ spider, "--export-table", "before.csv" }).exitCode, 0);
    QByteArray edited = written("before.csv");
    edited.replace(",false,", ",maybe,");
    QFile file(m_folder.filePath("edited.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(edited) == edited.size());
    file.close();
    const Result result
        = run({ spider, "--import-table", "edited.csv", "--export-table", "after.csv" });
    QVERIFY2(result.exitCode == 0, result.errors);
    QVERIFY2(result.output.contains("Changed values: 21, nodes: 21\n"), result.output);
    QCOMPARE(written("after.csv"), edited);
}

void tst_KavoExport::rowsWithoutAPlaceExitWithOneAfterAllOtherJobs()
{
    QCOMPARE(run({ spider, "--export-table", "before.csv" }).exitCode, 0);
    QFile file(m_folder.filePath("edited.csv"));
    const QByteArray table = written("before.csv").replace(",false,", ",maybe,");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(table) == table.size());
    const QByteArray last = table.mid(table.lastIndexOf('\n', -2) + 1);
    QVERIFY(
        file.write(QByteArray(last).replace(0, last.indexOf(",/"), "0").replace(",/", ",/No")) > 0);
    file.close();
    const Result result = run({ spider, "--import-table", "edited.csv", "--save", "saved.osg",
        "--screenshot", "window.png" });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains("kavo: Rows of 'edited.csv' without a place in the scene: 1\n"),
        result.errors);
    QVERIFY(written("saved.osg").contains("maybe"));
    QVERIFY(written("window.png").startsWith("\x89PNG"));
}

void tst_KavoExport::wrongOptionsExitWithTwo()
{
    const Result result = run({ spider, "--export-table", "t.csv", "--table-decimal", ";" });
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.errors.contains("--table-decimal is one of point, comma."));
}

QTEST_GUILESS_MAIN(tst_KavoExport)
#include "tst_kavoexport.moc"
