#include "kavoTestLoad.h"

#include "Files/kavoBackgroundLoader.h"
#include "Files/kavoOsgReader.h"
#include <kavoLog.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGLog.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace kavoTestLoad;

// Reads .osg files, alone and with the loader.
class tst_OsgReader : public QObject
{
    Q_OBJECT

private slots:
    void aSceneFileIsTheSceneItself();
    void severalFilesAreBelowOneRoot();
    void aSceneFileThatCannotBeReadIsNamed_data();
    void aSceneFileThatCannotBeReadIsNamed();
    void whatCannotBeReadIsInTheLog_data();
    void whatCannotBeReadIsInTheLog();
    void aFileIsWholeIfAllWasUnderstood_data();
    void aFileIsWholeIfAllWasUnderstood();

private:
    QString path(const char *name) const { return m_folder.filePath(name); }
    void write(const QString &file, const QByteArray &text) const;

    QTemporaryDir m_folder;
};

namespace {

QStringList names(const osg::NodePtr &root)
{
    QStringList result;
    for (const osg::NodePtr &node : allNodes(root)) {
        const QByteArray type = node->getCore()->getTypeName();
        result << QString::fromUtf8(kavoScenegraph::getNodeName(node)) + ' ' + type;
    }
    return result;
}

} // namespace

void tst_OsgReader::write(const QString &file, const QByteArray &text) const
{
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly));
    output.write(text);
}

void tst_OsgReader::aSceneFileIsTheSceneItself()
{
    write(path("a.osg"), "DEF Ship Node { children Node { } }");
    kavoBackgroundLoader loader;
    QStringList loaded;
    connect(&loader, &kavoBackgroundLoader::loaded, this,
        [&](const osg::NodePtr &root) { loaded = names(root); });
    loader.load({ path("a.osg") });
    QTRY_VERIFY(!loader.isLoading());
    QCOMPARE(loaded.size(), 2);
    QCOMPARE(loaded.first(), QStringLiteral("Ship Group"));
}

void tst_OsgReader::severalFilesAreBelowOneRoot()
{
    write(path("a.osg"), "DEF Ship Node { }");
    write(path("b.osg"), "DEF Boat Node { } DEF Raft Node { }");
    kavoBackgroundLoader loader;
    QStringList loaded;
    connect(&loader, &kavoBackgroundLoader::loaded, this,
        [&](const osg::NodePtr &root) { loaded = names(root); });
    loader.load({ path("a.osg"), model("Collada/lights.dae"), path("b.osg") });
    QTRY_VERIFY(!loader.isLoading());
    for (const char *name : { "Ship Group", "Boat Group", "Raft Group", "Materials Group" })
        QVERIFY2(loaded.contains(name), name);
}

void tst_OsgReader::aSceneFileThatCannotBeReadIsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing.osg";
    QTest::newRow("folder") << "folder.osg";
    QTest::newRow("no scene") << "prose.osg";
    QTest::newRow("a field that throws") << "throwing.osg";
}

void tst_OsgReader::aSceneFileThatCannotBeReadIsNamed()
{
    QFETCH(QString, name);
    QDir(m_folder.path()).mkdir("folder.osg");
    write(path("prose.osg"), "It was a dark and stormy night");
    write(path("throwing.osg"), "Node { attachments [ ThrowingMark { text \"a\" } ] }");
    kavoBackgroundLoader loader;
    QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
    loader.load({ m_folder.filePath(name) });
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed[0][0].toString(), m_folder.filePath(name));
    QVERIFY(!failed[0][1].toString().isEmpty());
    QVERIFY(!loader.isLoading());
}

void tst_OsgReader::whatCannotBeReadIsInTheLog_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("something the library warns of") << QByteArray(
        "Node { sparkles 5 }") << "warning: -----> parse error in Line 1, read 'sparkles'";
    QTest::newRow("something it remarks")
        << QByteArray("#VRML V1.0\nNode { }") << "info: File begins with '#VRML V1.0'";
}

void tst_OsgReader::whatCannotBeReadIsInTheLog()
{
    QFETCH(QByteArray, text);
    write(path("a.osg"), text);
    QString logged;
    const int observer = kavoLog::addObserver([&](const kavoLog::Entry &entry) {
        logged += QString("%1: %2\n")
                      .arg(kavoLog::levelName(entry.level), QString::fromStdString(entry.text));
    });
    kavoOsgReader::read(path("a.osg"));
    kavoLog::removeObserver(observer);
    QFETCH(QString, line);
    QVERIFY2(logged.startsWith(line), qPrintable(logged));
}

void tst_OsgReader::aFileIsWholeIfAllWasUnderstood_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("all") << QByteArray("#OSG V1.0 \nNode { }") << true;
    QTest::newRow("a header that lost its blank") << QByteArray("#OSG V1.0\nNode { }") << true;
    QTest::newRow("an unknown attachment")
        << QByteArray("Node { attachments [ VendorNotes { text \"years of work\" } ] }") << false;
    QTest::newRow("cut off") << QByteArray("Node { children [ Node { }") << false;
    QTest::newRow("an unknown name")
        << QByteArray("Node { core MaterialGroup { material USE Chrome } }") << false;
}

void tst_OsgReader::aFileIsWholeIfAllWasUnderstood()
{
    QFETCH(QByteArray, text);
    write(path("a.osg"), text);
    osg::osgLog().setLogLevel(osg::LOG_FATAL, true);
    const bool isWhole = kavoOsgReader::read(path("a.osg")).isWhole;
    QCOMPARE(osg::osgLog().getLogLevel(), osg::LOG_FATAL);
    osg::osgLog().setLogLevel(osg::LOG_WARNING, true);
    QTEST(isWhole, "isWhole");
}

KAVO_TEST_MAIN(tst_OsgReader)
#include "tst_osgreader.moc"
