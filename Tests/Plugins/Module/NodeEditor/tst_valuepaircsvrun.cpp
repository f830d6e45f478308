#include <OSGValuePairCSVCreator.h>
#include <kavoConsoleCapture.h>
#include <kavoNodePtr.h>
#include <kavoTestHost.h>
#include <kavoTestPairs.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

using kavoTestPairs::addNode;
using osg::UInt32;
using osg::ValuePairCSVCreator;

namespace {

const QByteArray constructorLine = "ValuePairCSVCreator::ValuePairCSVCreator\n";

} // namespace

// How a run of the operation is watched, ended and fails. What it writes is in tst_valuepaircsv.
class tst_ValuePairCsvRun : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFileThatCannotBeOpenedIsToldOnStandardOutput();
    void aFullDiskIsToldByTheSaveError();
    void theMonitorIsCalledNowAndThen();
    void theMonitorEndsTheTraversal();
    void aTraversalThatWasEndedStaysSoUntilAMonitorIsSet();

private:
    bool traverse();
    QByteArray saved();

    QTemporaryDir m_folder;
    std::unique_ptr<kavoConsoleCapture> m_console;
    std::unique_ptr<ValuePairCSVCreator> m_creator;
    kavoNodePtr m_root;
};

void tst_ValuePairCsvRun::init()
{
    m_console = std::make_unique<kavoConsoleCapture>(kavoConsoleCapture::StandardOutput);
    m_creator = std::make_unique<ValuePairCSVCreator>("ValuePairCSVCreator");
    m_root = addNode(osg::NullFC, "root");
}

void tst_ValuePairCsvRun::cleanup()
{
    m_root = osg::NullFC;
    m_creator.reset();
    m_console.reset();
}

bool tst_ValuePairCsvRun::traverse()
{
    osg::NodePtr root = m_root;
    return static_cast<osg::GraphOp &>(*m_creator).traverse(root);
}

QByteArray tst_ValuePairCsvRun::saved()
{
    m_creator->save(m_folder.filePath("pairs.csv").toStdString());
    QFile file(m_folder.filePath("pairs.csv"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

void tst_ValuePairCsvRun::aFileThatCannotBeOpenedIsToldOnStandardOutput()
{
    addNode(m_root, "a", { { "k", "1" } });
    traverse();
    QVERIFY(m_creator->save(m_folder.filePath("no/such/folder.csv").toStdString()));
    QCOMPARE(m_console->text(), constructorLine + "File could not be opened\n");
    QCOMPARE(m_creator->saveError(), ENOENT);
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\n"));
    QCOMPARE(m_creator->saveError(), 0);
}

void tst_ValuePairCsvRun::aFullDiskIsToldByTheSaveError()
{
    traverse();
    QVERIFY(m_creator->save("/dev/full"));
    QCOMPARE(m_creator->saveError(), ENOSPC);
}

void tst_ValuePairCsvRun::theMonitorIsCalledNowAndThen()
{
    for (osg::UInt32 i = 0; i < 2 * ValuePairCSVCreator::monitorInterval; ++i)
        addNode(m_root, nullptr);
    int calls = 0;
    m_creator->setMonitor([&] { return ++calls > 0; });
    traverse();
    QCOMPARE(calls, 2);
}

void tst_ValuePairCsvRun::theMonitorEndsTheTraversal()
{
    for (osg::UInt32 i = 0; i < 2 * ValuePairCSVCreator::monitorInterval; ++i)
        addNode(m_root, nullptr);
    int calls = 0;
    m_creator->setMonitor([&] { return ++calls < 1; });
    QVERIFY(!traverse());
    QCOMPARE(calls, 1);
}

void tst_ValuePairCsvRun::aTraversalThatWasEndedStaysSoUntilAMonitorIsSet()
{
    addNode(m_root, "a", { { "k", "1" } });
    for (UInt32 i = 0; i < ValuePairCSVCreator::monitorInterval; ++i)
        addNode(m_root, nullptr);
    m_creator->setMonitor([] { return false; });
    QVERIFY(!traverse());
    QVERIFY(!traverse());
    m_creator->setMonitor({});
    QVERIFY(traverse());
}

KAVO_TEST_MAIN(tst_ValuePairCsvRun)
#include "tst_valuepaircsvrun.moc"
