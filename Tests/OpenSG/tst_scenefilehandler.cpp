#include "SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sstream>

using namespace osg;

class tst_SceneFileHandler : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aFileIsWrittenAndRead();
    void theSuffixChoosesTheFormat_data();
    void theSuffixChoosesTheFormat();
    void theSuffixesAreListed();
    void aMissingFileGivesNull_data();
    void aMissingFileGivesNull();
    void anUnknownFormatGivesNull();
    void aFileThatCannotBeMadeFails();
    void anEmptyFileGivesNull();
    void nullIsNotWritten();
    void nullLeavesAFileAsItIs();
    void callbacksOfARead();
    void callbacksOfAWrite();
    void topNodesAreTheContainersThemselves();
    void filesAreFoundInTheFoldersOfThePathHandler();
    void optionsOfAnUnknownFormatAreRefused();

    void equalMaterialsAreMergedByDefault();
    void equalChunksAreMergedByDefault();
    void differentValuesKeepMaterialsApart_data();
    void differentValuesKeepMaterialsApart();
    void withoutSequenceTheSceneIsAsInTheFile();
    void theDefaultSequenceCanBeReplaced();
    void unknownOperationsOfASequenceAreLeftOut();

private:
    NodePtr readWithDefaults(const std::string &text);
    std::string file(const char *name) const { return m_folder.filePath(name).toStdString(); }

    std::unique_ptr<SceneText> m_text;
    QTemporaryDir m_folder;
    NodeRefPtr m_scene;
};

namespace {

std::string calls;

void onProgress(UInt32 percent)
{
    calls += "progress " + std::to_string(percent) + ", ";
}

void onBegin(const Char8 *)
{
    calls += "begin, ";
}

void onEnd(const Char8 *name)
{
    calls += std::string("end ") + name;
}

std::string materialNode(const std::string &material)
{
    return "Node { core MaterialGroup { material " + material + " } }\n";
}

MaterialPtr materialOf(const NodePtr &root, UInt32 child)
{
    return MaterialGroupPtr::dcast(root->getChild(child)->getCore())->getMaterial();
}

} // namespace

void tst_SceneFileHandler::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileHandler::init()
{
    m_text = std::make_unique<SceneText>();
    calls.clear();
}

void tst_SceneFileHandler::cleanup()
{
    SceneFileHandler &handler = SceneFileHandler::the();
    handler.setReadProgressCB(nullptr);
    handler.setReadBeginCB(nullptr);
    handler.setReadEndCB(nullptr);
    handler.setWriteProgressCB(nullptr);
    handler.setWriteBeginCB(nullptr);
    handler.setWriteEndCB(nullptr);
    handler.getPathHandler()->clearPathList();
    m_scene = NodeRefPtr();
    m_text.reset();
}

NodePtr tst_SceneFileHandler::readWithDefaults(const std::string &text)
{
    std::istringstream stream(text);
    m_scene = NodeRefPtr(SceneFileHandler::the().read(stream, "osg"));
    return m_scene.get();
}

void tst_SceneFileHandler::aFileIsWrittenAndRead()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    QVERIFY(SceneFileHandler::the().write(node.get(), file("a.osg").c_str()));
    m_scene = NodeRefPtr(SceneFileHandler::the().read(file("a.osg").c_str()));
    QCOMPARE(m_scene.get()->getNChildren(), 1u);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileHandler::theSuffixChoosesTheFormat_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isKnown");

    QTest::newRow("suffix") << QByteArray("ship.osg") << true;
    QTest::newRow("bare") << QByteArray("osg") << true;
    QTest::newRow("capitals") << QByteArray("SHIP.OSG") << true;
    QTest::newRow("only the last dot counts") << QByteArray("ship.osg.bak") << false;
    QTest::newRow("none") << QByteArray("ship") << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void tst_SceneFileHandler::theSuffixChoosesTheFormat()
{
    QFETCH(QByteArray, name);
    QTEST(SceneFileHandler::the().getFileType(name) != nullptr, "isKnown");
}

void tst_SceneFileHandler::theSuffixesAreListed()
{
    std::list<const Char8 *> suffixes;
    QCOMPARE(SceneFileHandler::the().getSuffixList(suffixes), 1);
    QCOMPARE(suffixes.front(), "osg");
    QCOMPARE(SceneFileHandler::the().getSuffixList(suffixes, 0), 0);
}

void tst_SceneFileHandler::aMissingFileGivesNull_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing") << m_folder.filePath("missing.osg");
    QTest::newRow("folder") << m_folder.filePath("folder.osg");
}

void tst_SceneFileHandler::aMissingFileGivesNull()
{
    QFETCH(QString, path);
    QDir(m_folder.path()).mkdir("folder.osg");
    QVERIFY(SceneFileHandler::the().read(qPrintable(path)) == NullFC);
    QCOMPARE(QString::fromStdString(m_text->takeLog()),
        QStringLiteral("WARNING:  Couldn't open file %1\n").arg(path));
}

void tst_SceneFileHandler::anUnknownFormatGivesNull()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    std::istringstream in("Node { }");
    QVERIFY(SceneFileHandler::the().read("ship.xyz") == NullFC);
    QVERIFY(SceneFileHandler::the().read(in, "xyz") == NullFC);
    QVERIFY(!SceneFileHandler::the().write(node.get(), file("ship.xyz").c_str()));
    QCOMPARE(QString::fromStdString(m_text->takeLog()).count("WARNING:  "), 3);
    QVERIFY(!QFile::exists(m_folder.filePath("ship.xyz")));
}

void tst_SceneFileHandler::aFileThatCannotBeMadeFails()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    const std::string path = file("no such folder/a.osg");
    QVERIFY(!SceneFileHandler::the().write(node.get(), path.c_str()));
    QCOMPARE(m_text->takeLog(), "WARNING:  Couldn't open file " + path + "\n");
}

void tst_SceneFileHandler::anEmptyFileGivesNull()
{
    QFile empty(m_folder.filePath("empty.osg"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QVERIFY(SceneFileHandler::the().read(file("empty.osg").c_str()) == NullFC);
    QVERIFY(!m_text->takeLog().empty());
}

void tst_SceneFileHandler::nullIsNotWritten()
{
    std::ostringstream out;
    QVERIFY(!SceneFileHandler::the().write(NullFC, out, "osg"));
    QCOMPARE(out.str(), std::string());
}

void tst_SceneFileHandler::nullLeavesAFileAsItIs()
{
    aFileIsWrittenAndRead();
    QVERIFY(!SceneFileHandler::the().write(NullFC, file("a.osg").c_str()));
    QVERIFY(QFileInfo(m_folder.filePath("a.osg")).size() > 0);
}

void tst_SceneFileHandler::callbacksOfARead()
{
    aFileIsWrittenAndRead();
    SceneFileHandler &handler = SceneFileHandler::the();
    handler.setReadProgressCB(onProgress);
    handler.setReadBeginCB(onBegin);
    handler.setReadEndCB(onEnd);
    m_scene = NodeRefPtr(handler.read(file("a.osg").c_str()));
    QCOMPARE(calls, "begin, progress 0, end " + file("a.osg"));
}

void tst_SceneFileHandler::callbacksOfAWrite()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    SceneFileHandler &handler = SceneFileHandler::the();
    handler.setWriteProgressCB(onProgress);
    handler.setWriteBeginCB(onBegin);
    handler.setWriteEndCB(onEnd);
    QVERIFY(handler.write(node.get(), file("a.osg").c_str()));
    QCOMPARE(calls, "progress 0, begin, progress 0, end " + file("a.osg"));
}

void tst_SceneFileHandler::topNodesAreTheContainersThemselves()
{
    std::istringstream in("Node { } SimpleMaterial { } Group { }");
    const FCPtrStore top = SceneFileHandler::the().readTopNodes(in, "osg");
    QCOMPARE(top.size(), std::size_t(3));
    QVERIFY(SimpleMaterialPtr::dcast(top[1]));
    for (const FieldContainerPtr &container : top) {
        QCOMPARE(container.getRefCount(), 0);
        subRefCP(container);
    }
}

void tst_SceneFileHandler::filesAreFoundInTheFoldersOfThePathHandler()
{
    aFileIsWrittenAndRead();
    SceneFileHandler::the().getPathHandler()->push_backPath("/no such folder");
    SceneFileHandler::the().getPathHandler()->push_backPath(qPrintable(m_folder.path()));
    m_scene = NodeRefPtr(SceneFileHandler::the().read("a.osg"));
    QVERIFY(m_scene.get() != NullFC);
}

void tst_SceneFileHandler::optionsOfAnUnknownFormatAreRefused()
{
    QVERIFY(!SceneFileHandler::the().setOptions("xyz", "whitespace=keep"));
}

void tst_SceneFileHandler::equalMaterialsAreMergedByDefault()
{
    const NodePtr root = readWithDefaults(materialNode("SimpleMaterial { shininess 5 }")
        + materialNode("SimpleMaterial { shininess 5 }")
        + materialNode("SimpleMaterial { shininess 6 }"));
    QVERIFY(materialOf(root, 0) == materialOf(root, 1));
    QCOMPARE(materialOf(root, 0).getRefCount(), 2);
    QVERIFY(materialOf(root, 0) != materialOf(root, 2));
}

void tst_SceneFileHandler::equalChunksAreMergedByDefault()
{
    const std::string chunk = "LineChunk { width 3 }";
    const NodePtr root = readWithDefaults(materialNode("ChunkMaterial { chunks [ " + chunk + " ] }")
        + materialNode("ChunkMaterial { sortKey 1 chunks [ PointChunk { } " + chunk + " ] }"));
    const auto first = ChunkMaterialPtr::dcast(materialOf(root, 0));
    const auto second = ChunkMaterialPtr::dcast(materialOf(root, 1));
    QVERIFY(first != second);
    QVERIFY(first->getChunks(0) == second->getChunks(1));
}

void tst_SceneFileHandler::differentValuesKeepMaterialsApart_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");

    QTest::newRow("names") << QByteArray("DEF A SimpleMaterial { }")
                           << QByteArray("DEF B SimpleMaterial { }");
    QTest::newRow("last digits") << QByteArray("SimpleMaterial { shininess 0.12345678 }")
                                 << QByteArray("SimpleMaterial { shininess 0.12345677 }");
    QTest::newRow("number of strings")
        << QByteArray(R"(SimpleMaterial { attachments StringAttributeMap { keys "a\", \"b" } })")
        << QByteArray(R"(SimpleMaterial { attachments StringAttributeMap { keys [ "a" "b" ] } })");
}

void tst_SceneFileHandler::differentValuesKeepMaterialsApart()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    const NodePtr root
        = readWithDefaults(materialNode(first.toStdString()) + materialNode(second.toStdString()));
    QVERIFY(materialOf(root, 0) != materialOf(root, 1));
}

void tst_SceneFileHandler::withoutSequenceTheSceneIsAsInTheFile()
{
    const NodePtr root
        = m_text->read(materialNode("SimpleMaterial { }") + materialNode("SimpleMaterial { }"));
    QVERIFY(materialOf(root, 0) != materialOf(root, 1));
}

void tst_SceneFileHandler::theDefaultSequenceCanBeReplaced()
{
    SceneFileHandler &handler = SceneFileHandler::the();
    GraphOpSeq *standard = handler.getDefaultGraphOp();
    handler.setDefaultGraphOp(nullptr);
    const NodePtr root
        = readWithDefaults(materialNode("SimpleMaterial { }") + materialNode("SimpleMaterial { }"));
    handler.setDefaultGraphOp(standard);
    QVERIFY(standard);
    QVERIFY(materialOf(root, 0) != materialOf(root, 1));
}

void tst_SceneFileHandler::unknownOperationsOfASequenceAreLeftOut()
{
    NodePtr root
        = m_text->read(materialNode("SimpleMaterial { }") + materialNode("SimpleMaterial { }"));
    GraphOpSeq sequence("Polish(strength=5) SharePtr(includes=Material)");
    QVERIFY(sequence.traverse(root));
    QVERIFY(materialOf(root, 0) == materialOf(root, 1));
    QCOMPARE(
        m_text->takeLog(), std::string("WARNING:  GraphOpSeq: there is no operation Polish\n"));
}

QTEST_APPLESS_MAIN(tst_SceneFileHandler)
#include "tst_scenefilehandler.moc"
