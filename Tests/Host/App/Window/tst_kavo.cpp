#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// Runs the application as a process with arguments, output and exit code.
class tst_Kavo : public QObject
{
    Q_OBJECT

private slots:
    void helpIsPrinted();
    void theVersionIsPrinted();
    void wrongUsageExitsWithTwo();
    void aFailedJobExitsWithOneAndSaysWhy_data();
    void aFailedJobExitsWithOneAndSaysWhy();
    void aFieldTypeThatThrowsFailsTheJob_data();
    void aFieldTypeThatThrowsFailsTheJob();
    void aJobThatIsNotDoneExitsWithOne();
    void aFullDiskFailsTheJob_data();
    void aFullDiskFailsTheJob();
    void theSceneWindowIsPrinted();
    void theNodeEditorIsPrintedForTheSelectedNode();
    void nodesOfEveryFormatAreShownInTheNodeEditor_data();
    void nodesOfEveryFormatAreShownInTheNodeEditor();
    void aNodeCanBeSelectedByItsId();
    void aScreenshotIsWritten();
    void theSceneIsSavedAndOpensAgain();
    void aSceneReadInPartIsSavedElsewhereOnly();
    void severalScenesOpenAsOne();
    void badPluginsAreReportedAndSkipped();
    void jobsNeedNoDisplay();
    void aWindowWithoutADisplayIsRefused_data();
    void aWindowWithoutADisplayIsRefused();
    void modulesLeaveInOrderAtTheEnd();

private:
    struct Result
    {
        int exitCode;
        QString output, errors;
    };
    Result run(const QStringList &arguments, const QStringList &unsetVariables = {},
        const QString &outputFile = {}) const;

    QTemporaryDir m_folder;
};

namespace {

const QString truck = QStringLiteral(KAVO_TEST_MODELS "/glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");
const QString selected = QStringLiteral("Geometry-mesh002Node");

QString firstLine(const QString &text)
{
    return text.section('\n', 0, 0);
}

} // namespace

tst_Kavo::Result tst_Kavo::run(const QStringList &arguments, const QStringList &unsetVariables,
    const QString &outputFile) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_folder.path());
    for (const QString &variable : unsetVariables)
        environment.remove(variable);
    process.setProcessEnvironment(environment);
    if (!outputFile.isEmpty())
        process.setStandardOutputFile(outputFile);
    process.start(KAVO_EXECUTABLE, arguments);
    const bool ended = process.waitForFinished(60000);
    const bool clean = ended && process.exitStatus() == QProcess::NormalExit;
    return { clean ? process.exitCode() : -1, process.readAllStandardOutput(),
        process.readAllStandardError() };
}

void tst_Kavo::helpIsPrinted()
{
    const Result result = run({ "--help" });
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.contains("--print-window <KEY>"));
}

void tst_Kavo::theVersionIsPrinted()
{
    const Result result = run({ "--version" });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QStringLiteral("kavo " KAVO_VERSION "\n"));
}

void tst_Kavo::wrongUsageExitsWithTwo()
{
    const Result result = run({ "--colour" });
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.errors.contains("colour"));
    QCOMPARE(run({ "--plugins", "/no/such/folder" }).exitCode, 2);
}

void tst_Kavo::aFailedJobExitsWithOneAndSaysWhy_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such file") << QStringList { "no-such-scene.gltf", "--print-window", "Scene" }
                                  << "no-such-scene.gltf";
    QTest::newRow("no such window")
        << QStringList { "--print-window", "Toaster" } << "There is no window 'Toaster'";
    QTest::newRow("no such node") << QStringList { truck, "--select", "Sail", "--print-window",
        "Scene" } << "no node named or numbered 'Sail'";
    QTest::newRow("no rows") << QStringList { "--print-window", "Log" }
                             << "The window 'Log' has no rows";
    QTest::newRow("no place for a picture")
        << QStringList { "--screenshot", "/no/such/folder/a.png" }
        << "a.png': Cannot open device for writing: No such file or directory";
    QTest::newRow("no place for the scene")
        << QStringList { truck, "--save", "/no/such/folder/a.osg" } << "/no/such/folder/a.osg";
    QTest::newRow("nothing to save")
        << QStringList { "--save", "a.osg" } << "There is no scene to save";
}

void tst_Kavo::aFailedJobExitsWithOneAndSaysWhy()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Result result = run(arguments);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
}

void tst_Kavo::aFieldTypeThatThrowsFailsTheJob_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<QString>("reason");
    QTest::newRow("an exception") << QByteArray("ThrowingMark { }") << "kavo: no writing\n";
    QTest::newRow("a number in reading")
        << QByteArray("ThrowingMark { text \"1 when read\" }") << "osg': unknown exception\n";
    QTest::newRow("a number in writing")
        << QByteArray("ThrowingMark { text \"1 when written\" }") << "kavo: unknown exception\n";
}

void tst_Kavo::aFieldTypeThatThrowsFailsTheJob()
{
    QFETCH(QByteArray, mark);
    QFETCH(QString, reason);
    QFile scene(m_folder.filePath("throwing.osg"));
    QVERIFY(scene.open(QIODevice::WriteOnly));
    QVERIFY(scene.write("Node { attachments [ " + mark + " ] }") > 0 && scene.flush());
    const Result result = run({ scene.fileName(), "--plugins",
        KAVO_TEST_PLUGIN_DIR "/throwingfield", "--save", m_folder.filePath("saved.osg") });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
}

void tst_Kavo::aJobThatIsNotDoneExitsWithOne()
{
    const QString picture = m_folder.filePath("never.png");
    const Result result
        = run({ truck, "--plugins", KAVO_TEST_PLUGIN_DIR "/closing", "--screenshot", picture });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains("Loading was canceled"), qPrintable(result.errors));
    QVERIFY(!QFile::exists(picture));
}

void tst_Kavo::aFullDiskFailsTheJob_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("window") << QStringList { truck, "--print-window", "Scene" };
    const QString root = firstLine(run({ truck, "--print-window", "Scene" }).output);
    QTest::newRow("field") << QStringList { truck, "--print-field",
        root.section('\t', 2) + ".volume", "--save", m_folder.filePath("truck.osg") };
    QTest::newRow("help") << QStringList { "--help" };
}

void tst_Kavo::aFullDiskFailsTheJob()
{
    QFETCH(QStringList, arguments);
    const Result result = run(arguments, {}, "/dev/full");
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains("No space left on device"), qPrintable(result.errors));
}

void tst_Kavo::theSceneWindowIsPrinted()
{
    const Result result = run({ truck, "--print-window", "Scene" });
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains(selected + "\tGeometry\t"), qPrintable(result.output));
}

void tst_Kavo::theNodeEditorIsPrintedForTheSelectedNode()
{
    const Result result = run({ truck, "--select", selected, "--print-window", "Node Editor" });
    QCOMPARE(result.exitCode, 0);
    const QRegularExpression title(
        QRegularExpression::anchoredPattern(selected + " Node \\(\\d+\\)\\t"));
    QVERIFY2(title.match(firstLine(result.output)).hasMatch(), qPrintable(result.output));
    QVERIFY(result.output.contains("\n  core Geometry ("));
    QVERIFY(result.output.contains("\n    material ChunkMaterial ("));
    QVERIFY(result.output.contains("\n       MaterialChunk ("));
}

void tst_Kavo::nodesOfEveryFormatAreShownInTheNodeEditor_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("node");
    QTest::addColumn<QStringList>("rows"); // in this order; others may stand in between
    const QStringList nodeRows { R"(  volume\t.+)", R"(  travMask\t-1)", R"(  parent\t\d+)" };
    QTest::newRow("Collada, a light") << "Collada/lights.dae"
                                      << "Lamp"
                                      << QStringList { R"(Lamp Node \(\d+\)\t)" } + nodeRows
            + QStringList { R"(  children\t<size = 1>)", R"(  core PointLight \(\d+\)\t)",
                  R"(    diffuse\t1\.00 1\.00 1\.00 1\.00)", R"(    beacon Node \(\d+\)\t)",
                  R"(          name\t"Lamp-beacon")", R"(    on\tTrue)" };
    QTest::newRow("IFC, a geometry without a name")
        << "IFC/AC14-FZK-Haus.ifc"
        << "Geometry"
        << QStringList { R"(Geometry Node \(\d+\)\t)" } + nodeRows
            + QStringList { R"(  children\t<size = 0>)", R"(  core Geometry \(\d+\)\t)",
                  R"(    material ChunkMaterial \(\d+\)\t)", R"(       MaterialChunk \(\d+\)\t)",
                  R"(    positions GeoPositions3f \(\d+\)\t)" };
    QTest::newRow("FBX, a node with properties")
        << "FBX/spider.fbx"
        << "OK"
        << QStringList { R"(OK Node \(\d+\)\t)", R"(    1 ValuePairBase \(\d+\)\t)",
               R"(      keys\t"UserProperties", "IsNull", "DefaultAttributeIndex", "InheritType")",
               R"(      values\t"", "false", "0", "1")" }
            + nodeRows + QStringList { R"(  core Transform \(\d+\)\t)", R"(    matrix\t.+)" };
}

void tst_Kavo::nodesOfEveryFormatAreShownInTheNodeEditor()
{
    QFETCH(QString, file);
    QFETCH(QString, node);
    QFETCH(QStringList, rows);
    const Result result
        = run({ KAVO_TEST_MODELS "/" + file, "--select", node, "--print-window", "Node Editor" });
    QCOMPARE(result.exitCode, 0);
    const QStringList lines = result.output.split('\n');
    int at = 0;
    for (const QString &row : qAsConst(rows)) {
        const QRegularExpression expected(QRegularExpression::anchoredPattern(row));
        at = lines.indexOf(expected, at) + 1;
        QVERIFY2(at > 0, qPrintable(row + " is not next in\n" + result.output));
    }
}

void tst_Kavo::aNodeCanBeSelectedByItsId()
{
    const Result byName = run({ truck, "--select", selected, "--print-window", "Node Editor" });
    const QString id = firstLine(byName.output).section('(', 1).section(')', 0, 0);
    const Result byId = run({ truck, "--select", id, "--print-window", "Node Editor" });
    QCOMPARE(byId.output, byName.output);
}

void tst_Kavo::aScreenshotIsWritten()
{
    const QString file = m_folder.filePath("picture.png");
    QCOMPARE(run({ truck, "--screenshot", file }).exitCode, 0);
    const QImage picture(file);
    QVERIFY(picture.width() >= 800 && picture.height() >= 600);
}

void tst_Kavo::theSceneIsSavedAndOpensAgain()
{
    const QString box = QStringLiteral(KAVO_TEST_MODELS "/glTF/BoxTextured-glTF/BoxTextured.gltf");
    const QString file = m_folder.filePath("box.osg");
    const Result saved = run({ box, "--save", file });
    QVERIFY2(saved.exitCode == 0, qPrintable(saved.errors));
    const QRegularExpression id("\\t\\d+\\n");
    const QString scene = run({ box, "--print-window", "Scene" }).output.replace(id, "\n");
    QVERIFY(!scene.isEmpty());
    QCOMPARE(run({ file, "--print-window", "Scene" }).output.replace(id, "\n"), scene);
}

void tst_Kavo::aSceneReadInPartIsSavedElsewhereOnly()
{
    const QString file = m_folder.filePath("part.osg");
    const QByteArray text = "Node { attachments [ VendorNotes { text \"years of work\" } ] }";
    QFile scene(file);
    QVERIFY(scene.open(QIODevice::ReadWrite) && scene.write(text) > 0 && scene.flush());
    const Result result = run({ file, "--save", file });
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains("Not all of"), qPrintable(result.errors));
    QFile after(file);
    QVERIFY(after.open(QIODevice::ReadOnly));
    QCOMPARE(after.readAll(), text);
    QCOMPARE(run({ file, "--save", m_folder.filePath("copy.osg") }).exitCode, 0);
}

void tst_Kavo::severalScenesOpenAsOne()
{
    const Result one = run({ truck, "--print-window", "Scene" });
    const Result two = run({ truck, truck, "--print-window", "Scene" });
    QCOMPARE(two.exitCode, 0);
    QCOMPARE(two.output.count(selected), 2 * one.output.count(selected));
}

void tst_Kavo::badPluginsAreReportedAndSkipped()
{
    const Result result = run({ "--plugins", KAVO_TEST_PLUGIN_DIR, "--print-window", "Scene" });
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.contains("libGoodPlugin.so' loaded"));
    QVERIFY(result.errors.contains("libThrowingPlugin.so' skipped"));
    QVERIFY(result.errors.contains("libWithoutEntryPlugin.so' skipped"));
}

void tst_Kavo::jobsNeedNoDisplay()
{
    const Result result
        = run({ "--print-window", "Scene" }, { "QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY" });
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.errors.contains("no display"));
}

void tst_Kavo::aWindowWithoutADisplayIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("alone") << QStringList {};
    QTest::newRow("with options of Qt") << QStringList { "-style", "fusion", truck };
}

void tst_Kavo::aWindowWithoutADisplayIsRefused()
{
    QFETCH(QStringList, arguments);
    const Result result = run(arguments, { "QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY" });
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.errors.contains("no display"));
}

void tst_Kavo::modulesLeaveInOrderAtTheEnd()
{
    const Result result = run({ truck, "--select", selected, "--print-window", "Node Editor" });
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.endsWith("kavoNodeEditor::~kavoNodeEditor\n"));
}

QTEST_GUILESS_MAIN(tst_Kavo)
#include "tst_kavo.moc"
