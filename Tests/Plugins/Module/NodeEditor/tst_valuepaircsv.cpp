#include <OSGValuePairCSVCreator.h>
#include <kavoConsoleCapture.h>
#include <kavoTestHost.h>
#include <kavoTestPairs.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using kavoTestPairs::addNode;
using osg::ValuePairCSVCreator;

namespace {

const QByteArray constructorLine = "ValuePairCSVCreator::ValuePairCSVCreator\n";
const QByteArray destructorLine = "ValuePairCSVCreator::~ValuePairCSVCreator\n";

} // namespace

class tst_ValuePairCsv : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void oneRowPerNodeAndOneColumnPerKey();
    void aSceneWithoutPairsWritesOnlyTheHeader();
    void anEmptyKeyListCountsAsNoPairs();
    void nodesThatAreNotFullyVisibleAreLeftOut();
    void allNodesAreTakenOnRequest();
    void newlinesSwallowTheNextByte_data();
    void newlinesSwallowTheNextByte();
    void nodesAfterTheLastPairProduceNoRows();
    void keysAreOrderedByBytes();
    void nothingIsQuoted();
    void namesAndKeysKeepTheirNewlines();
    void aNodeIsCalledByItsCoreIfItHasNoName();
    void nodesWithoutCoreAreNotSeen();
    void aNullRootIsNoError();
    void aRepeatedKeyAddsCellsThatTheNextPairCuts();
    void rowsBeyondTheLastNodeHaveAnEmptyName();
    void missingValuesAreEmpty();
    void keysAreComparedUpToTheirFirstNul();
    void aSecondPassShowsOldRowsUntilAPairCutsThem();
    void aSecondPassAppendsItsNames();
    void savingTwiceWritesNoRowsAgain();
    void thePrintedLinesTellOfCreationAndEnd();
    void creatingByNamePrintsTheDestructorsLineToo();
    void thereAreNoParameters();

private:
    void traverse();
    QByteArray saved();

    QTemporaryDir m_folder;
    std::unique_ptr<kavoConsoleCapture> m_console;
    std::unique_ptr<ValuePairCSVCreator> m_creator;
    kavoNodePtr m_root;
};

void tst_ValuePairCsv::init()
{
    m_console = std::make_unique<kavoConsoleCapture>(kavoConsoleCapture::StandardOutput);
    m_creator = std::make_unique<ValuePairCSVCreator>("ValuePairCSVCreator");
    m_root = addNode(osg::NullFC, "root");
}

void tst_ValuePairCsv::cleanup()
{
    m_root = osg::NullFC;
    m_creator.reset();
    m_console.reset();
}

void tst_ValuePairCsv::traverse()
{
    osg::NodePtr root = m_root;
    static_cast<osg::GraphOp &>(*m_creator).traverse(root);
}

QByteArray tst_ValuePairCsv::saved()
{
    m_creator->save(m_folder.filePath("pairs.csv").toStdString());
    QFile file(m_folder.filePath("pairs.csv"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

void tst_ValuePairCsv::oneRowPerNodeAndOneColumnPerKey()
{
    m_root = addNode(osg::NullFC, "Hull", { { "color", "red" }, { "size", "2" } });
    addNode(m_root, "Deck");
    addNode(m_root, "Mast", { { "color", "blue" } });
    traverse();
    QCOMPARE(saved(),
        QByteArray("nodes\\keys,color,size,\n"
                   "Hull,red,2,\n"
                   "Deck,,,\n"
                   "Mast,blue,,\n"));
}

void tst_ValuePairCsv::aSceneWithoutPairsWritesOnlyTheHeader()
{
    addNode(m_root, "a");
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,\n"));
}

void tst_ValuePairCsv::anEmptyKeyListCountsAsNoPairs()
{
    addNode(m_root, "a", { { "k", "1" } });
    const osg::NodePtr last = addNode(m_root, "b", { { "k", "2" } });
    kavoTestPairs::attachment(last)->getKeys().clear();
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,1,\n"));
}

void tst_ValuePairCsv::nodesThatAreNotFullyVisibleAreLeftOut()
{
    const osg::NodePtr hidden = addNode(m_root, "hidden", { { "h", "0" } });
    hidden->setTravMask(0xFFFFFFFE);
    addNode(hidden, "a", { { "k", "1" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,1,\n"));
}

void tst_ValuePairCsv::allNodesAreTakenOnRequest()
{
    addNode(m_root, "hidden", { { "h", "0" } })->setTravMask(0);
    m_creator->setCsvType(true);
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,h,\nroot,,\nhidden,0,\n"));
}

void tst_ValuePairCsv::newlinesSwallowTheNextByte_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("cell");

    QTest::newRow("a letter") << QByteArray("x\nyz") << QByteArray("x z");
    QTest::newRow("nothing at the end") << QByteArray("x\n") << QByteArray("x ");
    QTest::newRow("another newline") << QByteArray("x\n\ny") << QByteArray("x y");
    QTest::newRow("two of three") << QByteArray("\n\n\nx") << QByteArray("  ");
    QTest::newRow("a comma") << QByteArray("a\n,b") << QByteArray("a b");
    QTest::newRow("half of a letter") << QByteArray("a\n\xC3\xA4") << QByteArray("a \xA4");
    QTest::newRow("each by itself") << QByteArray("\nab\ncd") << QByteArray(" b d");
    QTest::newRow("only one") << QByteArray("\n") << QByteArray(" ");
    QTest::newRow("not carriage returns") << QByteArray("a\r\nbc") << QByteArray("a\r c");
}

void tst_ValuePairCsv::newlinesSwallowTheNextByte()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, cell);
    addNode(m_root, "n", { { "k", value.toStdString() } });
    traverse();
    QCOMPARE(saved(), "nodes\\keys,k,\nroot,,\nn," + cell + ",\n");
}

void tst_ValuePairCsv::nodesAfterTheLastPairProduceNoRows()
{
    addNode(m_root, "a", { { "k", "1" } });
    addNode(m_root, "b");
    addNode(m_root, "c");
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,1,\n"));
}

void tst_ValuePairCsv::keysAreOrderedByBytes()
{
    addNode(m_root, "n", { { "b", "1" }, { "\xC3\xA4", "2" }, { "B", "3" }, { "a", "4" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,B,a,b,\xC3\xA4,\nroot,,,,,\nn,3,4,1,2,\n"));
}

void tst_ValuePairCsv::nothingIsQuoted()
{
    addNode(m_root, "a,\"b\"", { { "k,\"", "1,\"2\"" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\",\nroot,,\na,\"b\",1,\"2\",\n"));
}

void tst_ValuePairCsv::namesAndKeysKeepTheirNewlines()
{
    addNode(m_root, "a\nb", { { "k\nl", "1" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k\nl,\nroot,,\na\nb,1,\n"));
}

void tst_ValuePairCsv::aNodeIsCalledByItsCoreIfItHasNoName()
{
    osg::setName(addNode(m_root, nullptr)->getCore(), "core");
    addNode(m_root, nullptr, { { "k", "1" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\ncore,,\nGroup,1,\n"));
}

void tst_ValuePairCsv::nodesWithoutCoreAreNotSeen()
{
    const osg::NodePtr empty = kavoTestScene::makeNode("empty", osg::NullFC, m_root);
    addNode(empty, "a", { { "k", "1" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,1,\n"));
}

void tst_ValuePairCsv::aNullRootIsNoError()
{
    struct Opened : ValuePairCSVCreator
    {
        using ValuePairCSVCreator::traverseEnter;
        using ValuePairCSVCreator::ValuePairCSVCreator;
    } creator("ValuePairCSVCreator");
    osg::NodePtr null = osg::NullFC;
    QCOMPARE(creator.traverseEnter(null), osg::Action::Continue);
}

void tst_ValuePairCsv::aRepeatedKeyAddsCellsThatTheNextPairCuts()
{
    addNode(m_root, "a", { { "k", "1" }, { "k", "2" }, { "k", "3" }, { "l", "4" } });
    addNode(m_root, "b");
    addNode(m_root, "c", { { "l", "5" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,l,\nroot,,,\na,1,4,\nb,2,,\nc,,5,\n"));
}

void tst_ValuePairCsv::rowsBeyondTheLastNodeHaveAnEmptyName()
{
    addNode(m_root, "a", { { "k", "1" }, { "k", "2" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,1,\n,2,\n"));
}

void tst_ValuePairCsv::missingValuesAreEmpty()
{
    const osg::NodePtr node = addNode(m_root, "a", { { "k", "1" }, { "l", "2" } });
    kavoTestPairs::attachment(node)->getValues().resize(1);
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,l,\nroot,,,\na,1,,\n"));
}

void tst_ValuePairCsv::keysAreComparedUpToTheirFirstNul()
{
    addNode(m_root, "a", { { "k", "1" }, { std::string("k\0x", 3), "2" } });
    addNode(m_root, "b", { { "k", "3" } });
    traverse();
    const QByteArray header("nodes\\keys,k,k\0x,\n", 18);
    QCOMPARE(saved(), header + "root,,,\na,1,1,\nb,3,3,\n");
}

void tst_ValuePairCsv::aSecondPassShowsOldRowsUntilAPairCutsThem()
{
    addNode(m_root, "a", { { "k", "1" } });
    addNode(m_root, "b", { { "k", "2" } });
    traverse();
    saved();
    m_root = addNode(osg::NullFC, "again");
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,,\na,1,\nb,2,\n"));
    m_root = addNode(osg::NullFC, "cut", { { "k", "3" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nroot,3,\n"));
}

void tst_ValuePairCsv::aSecondPassAppendsItsNames()
{
    m_root = addNode(osg::NullFC, "first", { { "k", "1" } });
    traverse();
    saved();
    addNode(m_root, "child", { { "k", "2" } });
    traverse();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\nfirst,1,\nfirst,2,\n"));
}

void tst_ValuePairCsv::savingTwiceWritesNoRowsAgain()
{
    addNode(m_root, "a", { { "k", "1" } });
    traverse();
    saved();
    QCOMPARE(saved(), QByteArray("nodes\\keys,k,\n"));
}

void tst_ValuePairCsv::thePrintedLinesTellOfCreationAndEnd()
{
    m_creator.reset();
    QCOMPARE(m_console->text(), constructorLine + destructorLine);
}

// Deliberate: two lines, of which the first is the destructor's though nothing ends.
void tst_ValuePairCsv::creatingByNamePrintsTheDestructorsLineToo()
{
    osg::GraphOpFactory::the().registerOp(m_creator.get());
    const std::unique_ptr<osg::GraphOp> op(
        osg::GraphOpFactory::the().create("ValuePairCSVCreator"));
    osg::GraphOpFactory::the().unRegisterOp("ValuePairCSVCreator");
    QVERIFY(dynamic_cast<ValuePairCSVCreator *>(op.get()));
    QCOMPARE(op->getName(), std::string("ValuePairCSVCreator"));
    QCOMPARE(m_console->text(), constructorLine + destructorLine + constructorLine);
}

void tst_ValuePairCsv::thereAreNoParameters()
{
    m_creator->setParams("csvtype=true");
    QCOMPARE(m_creator->usage(), std::string());
}

KAVO_TEST_MAIN(tst_ValuePairCsv)
#include "tst_valuepaircsv.moc"
