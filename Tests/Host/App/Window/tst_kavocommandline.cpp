#include "Window/kavoCommandLine.h"

#include <QTest>

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void nothingAsksForNothing();
    void everyOptionIsRead();
    void scenesAndFoldersMayBeSeveral();
    void aPictureOrAPrintedWindowIsAJob();
    void wrongUsageIsExplained_data();
    void wrongUsageIsExplained();
    void helpNamesEveryOption_data();
    void helpNamesEveryOption();
    void helpOffersNothingThatIsNotUnderstood();
};

static QStringList arguments(const QStringList &rest)
{
    return QStringList { "kavo" } + rest;
}

void tst_CommandLine::nothingAsksForNothing()
{
    const kavoCommandLine commandLine(arguments({}));
    QVERIFY(commandLine.error().isEmpty());
    QVERIFY(!commandLine.isJob());
    QVERIFY(!commandLine.wantsHelp());
    QVERIFY(commandLine.sceneFiles().isEmpty());
    QVERIFY(commandLine.nodeToSelect().isEmpty());
}

void tst_CommandLine::everyOptionIsRead()
{
    const kavoCommandLine commandLine(arguments({ "a.gltf", "--select", "Wheel", "--plugins", ".",
        "--screenshot", "s.png", "--print-window", "Node Editor", "--save", "s.osg" }));
    QVERIFY(commandLine.error().isEmpty());
    QCOMPARE(commandLine.sceneFiles(), QStringList { "a.gltf" });
    QCOMPARE(commandLine.nodeToSelect(), QStringLiteral("Wheel"));
    QCOMPARE(commandLine.pluginFolders(), QStringList { "." });
    QCOMPARE(commandLine.screenshotFile(), QStringLiteral("s.png"));
    QCOMPARE(commandLine.fileToSave(), QStringLiteral("s.osg"));
    QCOMPARE(commandLine.windowToPrint(), QStringLiteral("Node Editor"));
}

void tst_CommandLine::scenesAndFoldersMayBeSeveral()
{
    const kavoCommandLine commandLine(
        arguments({ "--plugins", ".", "a.gltf", "--plugins", "..", "b.fbx" }));
    QCOMPARE(commandLine.sceneFiles(), (QStringList { "a.gltf", "b.fbx" }));
    QCOMPARE(commandLine.pluginFolders(), (QStringList { ".", ".." }));
}

void tst_CommandLine::aPictureOrAPrintedWindowIsAJob()
{
    QVERIFY(kavoCommandLine(arguments({ "--screenshot", "s.png" })).isJob());
    QVERIFY(kavoCommandLine(arguments({ "--save", "s.osg" })).isJob());
    QVERIFY(kavoCommandLine(arguments({ "--print-window", "Log" })).isJob());
    QVERIFY(!kavoCommandLine(arguments({ "a.gltf", "--select", "Wheel" })).isJob());
}

void tst_CommandLine::wrongUsageIsExplained_data()
{
    QTest::addColumn<QStringList>("rest");
    QTest::newRow("unknown option") << QStringList { "--colour" };
    QTest::newRow("no value") << QStringList { "--select" };
    QTest::newRow("empty value") << QStringList { "--print-window=" };
    QTest::newRow("empty among others") << QStringList { "--plugins", ".", "--plugins", "" };
}

void tst_CommandLine::wrongUsageIsExplained()
{
    QFETCH(QStringList, rest);
    QVERIFY(!kavoCommandLine(arguments(rest)).error().isEmpty());
}

void tst_CommandLine::helpNamesEveryOption_data()
{
    QTest::addColumn<QString>("option");
    for (const char *option :
        { "--help", "--version", "--select", "--plugins", "--screenshot", "--print-window" })
        QTest::newRow(option) << QString(option);
}

void tst_CommandLine::helpNamesEveryOption()
{
    QFETCH(QString, option);
    const kavoCommandLine commandLine(arguments({ "--help" }));
    QVERIFY(commandLine.wantsHelp());
    QVERIFY(commandLine.helpText().contains(option));
}

void tst_CommandLine::helpOffersNothingThatIsNotUnderstood()
{
    QVERIFY(!kavoCommandLine(arguments({})).helpText().contains("--help-all"));
    QVERIFY(!kavoCommandLine(arguments({ "--help-all" })).error().isEmpty());
    QVERIFY(kavoCommandLine(arguments({ "-h" })).wantsHelp());
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_kavocommandline.moc"
