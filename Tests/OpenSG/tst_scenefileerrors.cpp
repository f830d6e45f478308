#include "SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

#include <QtTest>

#include <sstream>

using namespace osg;

/// What becomes of files with mistakes in them, and what is said about it.
class tst_SceneFileErrors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void anErrorTellsLineAndToken_data();
    void anErrorTellsLineAndToken();
    void anErrorShowsTheFirstLineOfItsToken();
    void aNullCharacterIsLeftOutAndReported();
    void aWrongValueLeavesTheFieldAlone();
    void unknownContainersAreSkippedWithAllThatIsInThem();
    void theListGoesOnBehindAnUnknownContainer();
    void aPointerToAWrongTypeIsNotMade();
    void whatIsNoSceneGivesNull_data();
    void whatIsNoSceneGivesNull();
    void anOpenStringDoesNotHarmLaterReads();
    void nestingIsBounded();
    void internalPointersAreNotRead();
    void aNodeCannotBeBelowItself();
    void aStreamHasNoNameInTheLog();

private:
    std::unique_ptr<SceneText> m_text;
};

void tst_SceneFileErrors::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileErrors::init()
{
    m_text = std::make_unique<SceneText>();
}

void tst_SceneFileErrors::cleanup()
{
    m_text.reset();
}

void tst_SceneFileErrors::anErrorTellsLineAndToken_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("token");

    QTest::newRow("unknown field") << QByteArray("colour 1 0 0") << 3 << QByteArray("colour");
    QTest::newRow("word for a number") << QByteArray("\nchoice TRUE") << 4 << QByteArray("TRUE");
    QTest::newRow("real for an integer") << QByteArray("choice 1.5") << 3 << QByteArray("1.5");
    QTest::newRow("nothing for a number") << QByteArray("choice") << 4 << QByteArray("}");
    QTest::newRow("unexpected bracket") << QByteArray("choice [ 1 ]") << 3 << QByteArray("[");
    QTest::newRow("unknown attachment")
        << QByteArray("attachments [ Sticker { } ]") << 3 << QByteArray("Sticker");
    QTest::newRow("abstract type")
        << QByteArray("attachments [ StateChunk { } ]") << 3 << QByteArray("StateChunk");
    QTest::newRow("reserved word") << QByteArray("PROTO 1") << 3 << QByteArray("PROTO");
    QTest::newRow("foreign character") << QByteArray("choice 'a'") << 3 << QByteArray("'");
    QTest::newRow("five numbers for a volume")
        << QByteArray("choice 1 } volume 1 2 3 4 5 travMask 7 core Group {") << 3
        << QByteArray("travMask");
    QTest::newRow("null character") << QByteArray("choice \0", 8) << 3 << QByteArray();
    QTest::newRow("name that is none")
        << QByteArray("attachments [ DEF 5 Name { } ]") << 3 << QByteArray("5");
}

void tst_SceneFileErrors::anErrorTellsLineAndToken()
{
    QFETCH(QByteArray, body);
    QFETCH(int, line);
    QFETCH(QByteArray, token);
    const NodePtr root = m_text->read(nodeWithCore("\nSwitch", body.toStdString()) + "Node { }");
    const QString expected = QStringLiteral("WARNING:  -----> parse error in Line %1, read '%2'\n");
    QCOMPARE(QString::fromStdString(m_text->takeLog()), expected.arg(line + 1).arg(token.data()));
    QCOMPARE(root->getNChildren(), 2u);
}

void tst_SceneFileErrors::anErrorShowsTheFirstLineOfItsToken()
{
    m_text->read("Node { attachments Name { name \"never\nclosed } }");
    const QString log = QString::fromStdString(m_text->takeLog());
    QVERIFY2(log.startsWith("WARNING:  -----> parse error in Line 1, read '\"never'\n"),
        qPrintable(log));
}

// Fields take text up to its first null character: the rest must not get lost without a word.
void tst_SceneFileErrors::aNullCharacterIsLeftOutAndReported()
{
    std::string text = "Node {\nattachments Name { name \"abc def\" } }";
    text[text.find("c d") + 1] = '\0';
    const NodePtr node = m_text->readFirst(text);
    QCOMPARE(std::string(getName(node)), std::string("abcdef"));
    QCOMPARE(m_text->takeLog(),
        std::string("WARNING:  A null character in the text in Line 2 is left out\n"));
}

void tst_SceneFileErrors::aWrongValueLeavesTheFieldAlone()
{
    const NodePtr node = m_text->readFirst("Node { travMask TRUE core Switch { choice 4 } }");
    QCOMPARE(node->getTravMask(), 0xffffffffu);
    QCOMPARE(SwitchPtr::dcast(node->getCore())->getChoice(), 4);
}

void tst_SceneFileErrors::unknownContainersAreSkippedWithAllThatIsInThem()
{
    const NodePtr node = m_text->readFirst(
        nodeWithCore("Geometry", "material Paint { layers [ Paint { } ] name \"}\" } vbo TRUE"));
    QVERIFY(GeometryPtr::dcast(node->getCore())->getVbo());
}

void tst_SceneFileErrors::theListGoesOnBehindAnUnknownContainer()
{
    const NodePtr node = m_text->readFirst(
        "Node { children [ Node { } Robot { arms [ 1 2 ] } Node { } ] travMask 7 }");
    QCOMPARE(node->getNChildren(), 2u);
    QCOMPARE(node->getTravMask(), 7u);
}

void tst_SceneFileErrors::aPointerToAWrongTypeIsNotMade()
{
    const UInt32 before = FieldContainerFactory::the()->getFieldContainerStore()->size();
    m_text->read(nodeWithCore("MaterialGroup", "material Image { width 5 }"));
    QCOMPARE(
        m_text->takeLog(), std::string("WARNING:  -----> parse error in Line 3, read 'Image'\n"));
    for (UInt32 id = before; id < FieldContainerFactory::the()->getFieldContainerStore()->size();
         ++id) {
        QVERIFY(!ImagePtr::dcast(FieldContainerFactory::the()->getContainer(id)));
    }
}

void tst_SceneFileErrors::whatIsNoSceneGivesNull_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("only a header") << QByteArray("#OSG V1.0 \n");
    QTest::newRow("prose") << QByteArray("It was a dark and stormy night; the rain fell.");
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("unknown name") << QByteArray("USE Nothing");
    QTest::newRow("brackets") << QByteArray("[{[{]}]");
    QTest::newRow("keyword at the end") << QByteArray("DEF");
}

void tst_SceneFileErrors::whatIsNoSceneGivesNull()
{
    QFETCH(QByteArray, text);
    QVERIFY(m_text->read(text.toStdString()) == NullFC);
    QVERIFY(!m_text->takeLog().empty());
}

void tst_SceneFileErrors::anOpenStringDoesNotHarmLaterReads()
{
    m_text->read("Node { attachments Name { name \"never closed");
    QVERIFY(!m_text->takeLog().empty());
    QVERIFY(m_text->read("Node { attachments Name { name \"closed\" } }") != NullFC);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileErrors::nestingIsBounded()
{
    std::string text;
    for (int level = 0; level < 100000; ++level) {
        text += "Node { children [ ";
    }
    QVERIFY(m_text->read(text) != NullFC);
    QVERIFY(QString::fromStdString(m_text->takeLog()).contains("parse error in Line 1"));
}

void tst_SceneFileErrors::internalPointersAreNotRead()
{
    const NodePtr node = m_text->readFirst("DEF A Node { children Node { parent NULL } }");
    QVERIFY(node->getChild(0)->getParent() == node);
    QCOMPARE(
        m_text->takeLog(), std::string("WARNING:  -----> parse error in Line 1, read 'parent'\n"));
}

void tst_SceneFileErrors::aNodeCannotBeBelowItself()
{
    const NodePtr node
        = m_text->readFirst("DEF A Node { children Node { children [ USE A Node { } ] } }");
    QCOMPARE(node->getChild(0)->getNChildren(), 1u);
    QCOMPARE(m_text->takeLog(), std::string("WARNING:  -----> parse error in Line 1, read 'A'\n"));
}

void tst_SceneFileErrors::aStreamHasNoNameInTheLog()
{
    m_text->read("");
    QCOMPARE(m_text->takeLog(), std::string("WARNING:  There is no scene in the stream\n"));
    std::ostringstream broken;
    broken.setstate(std::ios::badbit);
    const NodeRefPtr node(makeCoredNode<Group>());
    QVERIFY(!SceneFileHandler::the().write(node.get(), broken, "osg"));
    QCOMPARE(m_text->takeLog(), std::string("WARNING:  Couldn't write the scene to the stream\n"));
}

QTEST_APPLESS_MAIN(tst_SceneFileErrors)
#include "tst_scenefileerrors.moc"
