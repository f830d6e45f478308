#include <OSGValuePairCSVCreator.h>
#include <kavoConsoleCapture.h>
#include <kavoNodePtr.h>
#include <kavoNodeUtils.h>
#include <kavoTestHost.h>
#include <kavoTestPairs.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>
#include <string>

using kavoTestPairs::addNode;
using osg::NodePtr;
using osg::UInt32;
using osg::ValuePairCSVCreator;

namespace {

const QByteArray constructorLine = "ValuePairCSVCreator::ValuePairCSVCreator\n";

using ByValue = bool (ValuePairCSVCreator::*)(NodePtr);
using ByReference = bool (ValuePairCSVCreator::*)(const NodePtr &);

/// Leaves out nodes called "secret" and counts the nodes that are left.
struct WithoutSecrets : ValuePairCSVCreator
{
    using ValuePairCSVCreator::ValuePairCSVCreator;

    bool travNodeEnter(const NodePtr &node) override
    {
        if (kavoNodeUtils::getName(node) != std::string("secret"))
            gather(node);
        return true;
    }
    bool travNodeLeave(const NodePtr &) override
    {
        ++left;
        return false;
    }

    int left = 0;
};

/// The same with callbacks that take nodes by value.
struct WithoutSecretsByValue : ValuePairCSVCreator
{
    using ValuePairCSVCreator::ValuePairCSVCreator;

    bool travNodeEnter(NodePtr node) override
    {
        if (kavoNodeUtils::getName(node) != std::string("secret"))
            gather(node);
        return true;
    }
    bool travNodeLeave(NodePtr) override
    {
        ++left;
        return false;
    }

    int left = 0;
};

} // namespace

// Tests how a run is watched and ended, how it fails and how it is overridden. tst_valuepaircsv
// tests what it writes.
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
    void enteringReturnsFalseAndLeavingTrue();
    void derivedOperationsOverrideTheCallbacks();
    void derivedOperationsOverrideTheCallbacksByValue();

private:
    bool traverse();
    QByteArray saved();
    template <class Operation> void checkThatSecretsAreLeftOut();

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

void tst_ValuePairCsvRun::enteringReturnsFalseAndLeavingTrue()
{
    const NodePtr node = addNode(m_root, "a", { { "k", "1" } });
    QVERIFY(!(*m_creator.*ByReference(&ValuePairCSVCreator::travNodeEnter))(node));
    QVERIFY(!(*m_creator.*ByValue(&ValuePairCSVCreator::travNodeEnter))(node));
    QVERIFY((*m_creator.*ByReference(&ValuePairCSVCreator::travNodeLeave))(node));
    QVERIFY((*m_creator.*ByValue(&ValuePairCSVCreator::travNodeLeave))(node));
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\na,1,\na,1,\n"));
}

template <class Operation> void tst_ValuePairCsvRun::checkThatSecretsAreLeftOut()
{
    addNode(m_root, "secret", { { "password", "1" } });
    addNode(m_root, "a", { { "k", "2" } });
    auto creator = std::make_unique<Operation>("ValuePairCSVCreator");
    const Operation &operation = *creator;
    m_creator = std::move(creator);
    QVERIFY(traverse());
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,2,\n"));
    QCOMPARE(operation.left, 3);
}

void tst_ValuePairCsvRun::derivedOperationsOverrideTheCallbacks()
{
    checkThatSecretsAreLeftOut<WithoutSecrets>();
}

void tst_ValuePairCsvRun::derivedOperationsOverrideTheCallbacksByValue()
{
    checkThatSecretsAreLeftOut<WithoutSecretsByValue>();
}

KAVO_TEST_MAIN(tst_ValuePairCsvRun)
#include "tst_valuepaircsvrun.moc"
