#include "kavoFileSizeLimit.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsvCreatorExport.h"
#include <kavoConsoleCapture.h>
#include <kavoNodePtr.h>
#include <kavoTestHost.h>
#include <kavoTestPairs.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using kavoTestPairs::addNode;

class tst_CsvCreatorExport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theSceneIsWritten();
    void aPartOfTheSceneIsWritten();
    void allNodesAreWrittenOnRequest();
    void anEmptySceneIsOnlyAHeader();
    void theOperationIsCreatedByNameAndDeleted();
    void anExistingFileIsReplacedAndKeepsItsPermissions();
    void aLinkStaysALink();
    void aLinkToNothingStaysALink();
    void aLinkToItselfIsExplained();
    void aDeviceIsWrittenToDirectly();
    void aPipeIsWrittenToDirectly();
    void aStreamRedirectedToAFileIsRefused();
    void aNameMayBeAsLongAsNamesCanBe();
    void aFileThatCannotBeWrittenIsExplained_data();
    void aFileThatCannotBeWrittenIsExplained();
    void aFullDiskIsExplained();
    void aFailureInTheMiddleLeavesNothing();
    void aFailureInTheMiddleKeepsTheOldFile();
    void progressGrowsToTheEnd();
    void cancelingLeavesNothing();
    void cancelingKeepsTheOldFile();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    static QByteArray contentOf(const QString &file);
    QString reasonOf(const QString &file) const;

    std::unique_ptr<kavoConsoleCapture> m_console;
    std::unique_ptr<QTemporaryDir> m_folder;
    kavoNodePtr m_root;
};

void tst_CsvCreatorExport::init()
{
    m_console = std::make_unique<kavoConsoleCapture>(kavoConsoleCapture::StandardOutput);
    m_folder = std::make_unique<QTemporaryDir>();
    m_root = addNode(osg::NullFC, "Hull", { { "color", "red" } });
    addNode(m_root, "Mast", { { "color", "blue" } });
}

void tst_CsvCreatorExport::cleanup()
{
    m_root = osg::NullFC;
    m_folder.reset();
    m_console.reset();
}

QByteArray tst_CsvCreatorExport::contentOf(const QString &file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : "no file";
}

// Returns the reason why the file cannot be written.
QString tst_CsvCreatorExport::reasonOf(const QString &file) const
{
    try {
        kavoCsvCreatorExport::run(m_root, file, false);
    } catch (const kavoTaskError &error) {
        return error.message();
    }
    return "no error";
}

void tst_CsvCreatorExport::theSceneIsWritten()
{
    QVERIFY(kavoCsvCreatorExport::run(m_root, path("a.csv"), false));
    QCOMPARE(contentOf(path("a.csv")), QByteArray("nodes\\keys,color,\nHull,red,\nMast,blue,\n"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList { "a.csv" });
}

void tst_CsvCreatorExport::aPartOfTheSceneIsWritten()
{
    QVERIFY(kavoCsvCreatorExport::run(m_root->getChild(0), path("a.csv"), false));
    QCOMPARE(contentOf(path("a.csv")), QByteArray("nodes\\keys,color,\nMast,blue,\n"));
}

void tst_CsvCreatorExport::allNodesAreWrittenOnRequest()
{
    m_root->getChild(0)->setTravMask(1);
    kavoCsvCreatorExport::run(m_root, path("visible.csv"), false);
    QCOMPARE(contentOf(path("visible.csv")), QByteArray("nodes\\keys,color,\nHull,red,\n"));
    kavoCsvCreatorExport::run(m_root, path("all.csv"), true);
    QCOMPARE(contentOf(path("all.csv")), QByteArray("nodes\\keys,color,\nHull,red,\nMast,blue,\n"));
}

void tst_CsvCreatorExport::anEmptySceneIsOnlyAHeader()
{
    QVERIFY(kavoCsvCreatorExport::run(osg::NullFC, path("a.csv"), false));
    QCOMPARE(contentOf(path("a.csv")), QByteArray("nodes\\keys,\n"));
}

void tst_CsvCreatorExport::theOperationIsCreatedByNameAndDeleted()
{
    kavoCsvCreatorExport::run(m_root, path("a.csv"), false);
    kavoConsoleCapture console(kavoConsoleCapture::StandardOutput);
    kavoCsvCreatorExport::run(m_root, path("b.csv"), false);
    QCOMPARE(console.text(),
        QByteArray("ValuePairCSVCreator::~ValuePairCSVCreator\n"
                   "ValuePairCSVCreator::ValuePairCSVCreator\n"
                   "ValuePairCSVCreator::~ValuePairCSVCreator\n"));
}

void tst_CsvCreatorExport::anExistingFileIsReplacedAndKeepsItsPermissions()
{
    QFile old(path("a.csv"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    ::chmod(QFile::encodeName(old.fileName()), 0640);
    kavoCsvCreatorExport::run(m_root, old.fileName(), false);
    QVERIFY(contentOf(old.fileName()).startsWith("nodes"));
    struct stat status;
    QCOMPARE(::stat(QFile::encodeName(old.fileName()), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0640);
}

void tst_CsvCreatorExport::aLinkStaysALink()
{
    kavoCsvCreatorExport::run(m_root, path("a.csv"), false);
    QVERIFY(QFile::link(path("a.csv"), path("link.csv")));
    kavoCsvCreatorExport::run(m_root->getChild(0), path("link.csv"), false);
    QVERIFY(QFileInfo(path("link.csv")).isSymLink());
    QCOMPARE(contentOf(path("a.csv")), QByteArray("nodes\\keys,color,\nMast,blue,\n"));
}

void tst_CsvCreatorExport::aLinkToNothingStaysALink()
{
    QVERIFY(QFile::link(path("a.csv"), path("link.csv")));
    QVERIFY(QFile::link(path("link.csv"), path("link to the link.csv")));
    kavoCsvCreatorExport::run(m_root, path("link to the link.csv"), false);
    QVERIFY(QFileInfo(path("link to the link.csv")).isSymLink());
    QVERIFY(QFileInfo(path("link.csv")).isSymLink());
    QVERIFY(contentOf(path("a.csv")).startsWith("nodes"));
}

void tst_CsvCreatorExport::aLinkToItselfIsExplained()
{
    QVERIFY(QFile::link(path("a.csv"), path("a.csv")));
    QCOMPARE(
        reasonOf(path("a.csv")), "Cannot write '" + path("a.csv") + "': " + qt_error_string(ELOOP));
    QVERIFY(QFileInfo(path("a.csv")).isSymLink());
}

void tst_CsvCreatorExport::aPipeIsWrittenToDirectly()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    QVERIFY(kavoCsvCreatorExport::run(m_root, QString("/dev/fd/%1").arg(ends[1]), false));
    ::close(ends[1]);
    QFile pipe;
    QVERIFY(pipe.open(ends[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
    QCOMPARE(pipe.readAll(), QByteArray("nodes\\keys,color,\nHull,red,\nMast,blue,\n"));
}

void tst_CsvCreatorExport::aStreamRedirectedToAFileIsRefused()
{
    QFile file(path("log.txt"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write("precious");
    file.flush();
    QVERIFY(reasonOf(QString("/dev/fd/%1").arg(file.handle())).contains("name the file instead"));
    QCOMPARE(contentOf(path("log.txt")), QByteArray("precious"));
}

void tst_CsvCreatorExport::aNameMayBeAsLongAsNamesCanBe()
{
    const QString longest = path(QString(NAME_MAX, 'a'));
    QVERIFY(kavoCsvCreatorExport::run(m_root, longest, false));
    QVERIFY(contentOf(longest).startsWith("nodes"));
}

void tst_CsvCreatorExport::aDeviceIsWrittenToDirectly()
{
    QVERIFY(kavoCsvCreatorExport::run(m_root, "/dev/null", false));
    QVERIFY(!QFileInfo("/dev/null").isFile());
}

void tst_CsvCreatorExport::aFileThatCannotBeWrittenIsExplained_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such folder") << "/no/such/folder/a.csv"
                                    << "No such file or directory";
    QTest::newRow("a folder") << "/"
                              << "Is a directory";
}

void tst_CsvCreatorExport::aFileThatCannotBeWrittenIsExplained()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    QCOMPARE(reasonOf(file), QString("Cannot write '%1': %2").arg(file, reason));
}

void tst_CsvCreatorExport::aFullDiskIsExplained()
{
    QVERIFY(QFile::link("/dev/full", path("full.csv")));
    QVERIFY(reasonOf(path("full.csv")).endsWith("No space left on device"));
}

void tst_CsvCreatorExport::aFailureInTheMiddleLeavesNothing()
{
    const kavoFileSizeLimit limit(1 << 20);
    addNode(m_root, "Sail", { { "color", std::string(3 << 20, 'x') } });
    QVERIFY(reasonOf(path("a.csv")).endsWith(qt_error_string(EFBIG)));
    QVERIFY(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void tst_CsvCreatorExport::aFailureInTheMiddleKeepsTheOldFile()
{
    kavoCsvCreatorExport::run(m_root, path("a.csv"), false);
    const QByteArray old = contentOf(path("a.csv"));
    const kavoFileSizeLimit limit(1 << 20);
    addNode(m_root, "Sail", { { "color", std::string(3 << 20, 'x') } });
    QVERIFY(reasonOf(path("a.csv")).endsWith(qt_error_string(EFBIG)));
    QCOMPARE(contentOf(path("a.csv")), old);
}

void tst_CsvCreatorExport::progressGrowsToTheEnd()
{
    for (int i = 0; i < 5000; ++i)
        addNode(m_root, nullptr);
    std::vector<int> percents;
    kavoCsvCreatorExport::run(m_root, path("a.csv"), false, [&](int percent) {
        percents.push_back(percent);
        return true;
    });
    QVERIFY(percents.size() >= 4);
    QVERIFY(std::is_sorted(percents.begin(), percents.end()));
    QVERIFY(percents.front() > 0 && percents.back() <= 100);
}

void tst_CsvCreatorExport::cancelingLeavesNothing()
{
    for (int i = 0; i < 5000; ++i)
        addNode(m_root, nullptr);
    const auto cancel = [](int) { return false; };
    QVERIFY(!kavoCsvCreatorExport::run(m_root, path("a.csv"), false, cancel));
    QVERIFY(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void tst_CsvCreatorExport::cancelingKeepsTheOldFile()
{
    kavoCsvCreatorExport::run(m_root, path("a.csv"), false);
    const QByteArray old = contentOf(path("a.csv"));
    for (int i = 0; i < 5000; ++i)
        addNode(m_root, nullptr, { { "k", "v" } });
    QVERIFY(!kavoCsvCreatorExport::run(m_root, path("a.csv"), false, [](int) { return false; }));
    QCOMPARE(contentOf(path("a.csv")), old);
}

KAVO_TEST_MAIN(tst_CsvCreatorExport)
#include "tst_csvcreatorexport.moc"
