#include "SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGDistanceLOD.h>
#include <OpenSG/OSGFCPtrAttributeMap.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGState.h>
#include <OpenSG/OSGStringAttributeMap.h>

#include <QtTest>

#include <limits>
#include <sstream>

using namespace osg;

/// Values that the format has no form for, or none that everybody knows.
class tst_SceneFileValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aQuoteIsProtectedAndReported();
    void backslashesReadBack_data();
    void backslashesReadBack();
    void whiteSpaceInStringsBecomesSingleBlanks();
    void whiteSpaceInStringsCanBeKept();
    void longStringsOfAListStayWhole_data();
    void longStringsOfAListStayWhole();
    void theStringsOfAListStayInTheirPlaces_data();
    void theStringsOfAListStayInTheirPlaces();
    void listsCanReplaceThoseOfThePrototype();
    void anOptionIsAWordOfItsOwn();
    void emptyPlacesInAListAreReportedAndLeftOut();
    void emptyPlacesStayInListsThatReplace();
    void aStateWithEmptyPlacesTakesChunks();
    void bindingsOfAttachmentsAreReportedAndGiveWay();
    void infiniteNumbersReadBack();
    void whatIsNoNumberIsWrittenAsZeroAndReported();
    void theDepthOfASphereIsReported_data();
    void theDepthOfASphereIsReported();

private:
    NodePtr named(const std::string &name) const;
    std::string nameReadBack(const std::string &name);
    FCPtrAttributeMapPtr readBackWithEmptyPlace();

    std::unique_ptr<SceneText> m_text;
};

namespace {

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

void tst_SceneFileValues::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileValues::init()
{
    m_text = std::make_unique<SceneText>();
}

void tst_SceneFileValues::cleanup()
{
    m_text.reset();
    SceneFileHandler::the().setOptions("osg", "");
}

NodePtr tst_SceneFileValues::named(const std::string &name) const
{
    const NodePtr node = makeCoredNode<Group>();
    setName(node, name);
    return node;
}

std::string tst_SceneFileValues::nameReadBack(const std::string &name)
{
    const NodeRefPtr node(named(name));
    const NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    return getName(copy) ? getName(copy) : "no name";
}

void tst_SceneFileValues::aQuoteIsProtectedAndReported()
{
    const NodeRefPtr node(named("say \"hi\""));
    const std::string text = m_text->write(node.get());
    QVERIFY(contains(text, R"(name "say \"hi\"")"));
    QVERIFY(contains(m_text->takeLog(), "WARNING:  Scene file, field name of Name: a quote"));
    QCOMPARE(getName(m_text->readFirst(text)), "say \"hi\"");
}

void tst_SceneFileValues::backslashesReadBack_data()
{
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("path") << QByteArray(R"(C:\new\ship)");
    QTest::newRow("double") << QByteArray(R"(\\server)");
    QTest::newRow("at the end") << QByteArray(R"(folder\)");
    QTest::newRow("before a quote") << QByteArray(R"(a\"b)");
    QTest::newRow("three") << QByteArray(R"(\\\)");
}

void tst_SceneFileValues::backslashesReadBack()
{
    QFETCH(QByteArray, name);
    QCOMPARE(QByteArray(nameReadBack(name.toStdString()).c_str()), name);
}

void tst_SceneFileValues::whiteSpaceInStringsBecomesSingleBlanks()
{
    QCOMPARE(nameReadBack("two  blanks\tand\nlines"), std::string("two blanks and lines"));
    QVERIFY(contains(m_text->takeLog(), "white space"));
}

void tst_SceneFileValues::whiteSpaceInStringsCanBeKept()
{
    QVERIFY(SceneFileHandler::the().setOptions("osg", "whitespace=keep"));
    QCOMPARE(nameReadBack(" two  blanks\tand\nlines "), std::string(" two  blanks\tand\nlines "));
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileValues::longStringsOfAListStayWhole_data()
{
    QTest::addColumn<QByteArray>("options");

    QTest::newRow("white space as usual") << QByteArray("");
    QTest::newRow("white space kept") << QByteArray("whitespace=keep");
}

void tst_SceneFileValues::longStringsOfAListStayWhole()
{
    QFETCH(QByteArray, options);
    SceneFileHandler::the().setOptions("osg", options);
    const std::string longText(70, 'x');
    const NodeRefPtr node(makeCoredNode<Group>());
    const StringAttributeMapPtr attributes = StringAttributeMap::create();
    attributes->setAttribute("first", longText + " and " + longText);
    attributes->setAttribute("second", "");
    node->addAttachment(attributes);
    const NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    const auto read
        = StringAttributeMapPtr::dcast(copy->findAttachment(StringAttributeMap::getClassType()));
    QCOMPARE(read->getAttribute("first"), longText + " and " + longText);
    QVERIFY(read->hasAttribute("second"));
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileValues::theStringsOfAListStayInTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QByteArray>("lines");

    QTest::newRow("white space as usual") << QByteArray("") << QByteArray("line1 // c line2");
    QTest::newRow("white space kept")
        << QByteArray("whitespace=keep") << QByteArray("line1 // c\nline2");
}

void tst_SceneFileValues::theStringsOfAListStayInTheirPlaces()
{
    QFETCH(QByteArray, options);
    QFETCH(QByteArray, lines);
    SceneFileHandler::the().setOptions("osg", options);
    const NodeRefPtr node(makeCoredNode<Group>());
    const StringAttributeMapPtr attributes = StringAttributeMap::create();
    const std::string texts[] = { { 'a', '\0', 'b' }, "line1 // c\nline2", "", "tail\\" };
    for (const std::string &text : texts) {
        attributes->setAttribute(text + '.', text);
    }
    node->addAttachment(attributes);
    const NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    const auto read
        = StringAttributeMapPtr::dcast(copy->findAttachment(StringAttributeMap::getClassType()));
    const std::vector<std::string> expected { "ab", lines.toStdString(), "", "tail\\" };
    QCOMPARE(
        std::vector<std::string>(read->getValues().begin(), read->getValues().end()), expected);
    QCOMPARE(read->getAttribute("ab."), std::string("ab"));
    QVERIFY(contains(m_text->takeLog(), "field values of StringAttributeMap: a null character"));
}

void tst_SceneFileValues::listsCanReplaceThoseOfThePrototype()
{
    SceneFileHandler::the().setOptions("osg", "lists=replace");
    const std::string material = nodeWithCore("MaterialGroup",
        "material ChunkMaterial { chunks RegisterCombinersChunk { "
        "variableArgb [ 7 ] variableArgb 8 } }");
    const NodePtr node = m_text->readFirst(material);
    const auto group = MaterialGroupPtr::dcast(node->getCore());
    const auto chunk = ChunkMaterialPtr::dcast(group->getMaterial())->getChunks(0);
    std::string text;
    QCOMPARE(QByteArray(chunk->getField("variableArgb")->getValueByStr(text).c_str()),
        QByteArray("7, 8"));
}

void tst_SceneFileValues::anOptionIsAWordOfItsOwn()
{
    SceneFileHandler::the().setOptions("osg", "nowhitespace=keep whitespace=keeper");
    QCOMPARE(nameReadBack("two  blanks"), std::string("two blanks"));
}

// Of null and a group.
FCPtrAttributeMapPtr tst_SceneFileValues::readBackWithEmptyPlace()
{
    const NodeRefPtr node(makeCoredNode<Group>());
    const FCPtrAttributeMapPtr map = FCPtrAttributeMap::create();
    map->getValues().push_back(NullFC);
    map->getValues().push_back(Group::create());
    node->addAttachment(map);
    const NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    return FCPtrAttributeMapPtr::dcast(copy->findAttachment(FCPtrAttributeMap::getClassType()));
}

void tst_SceneFileValues::emptyPlacesInAListAreReportedAndLeftOut()
{
    QCOMPARE(readBackWithEmptyPlace()->getValues().size(), 1u);
    QVERIFY(contains(m_text->takeLog(),
        "WARNING:  Scene file, field values of FCPtrAttributeMap: an empty place"));
}

void tst_SceneFileValues::emptyPlacesStayInListsThatReplace()
{
    SceneFileHandler::the().setOptions("osg", "lists=replace");
    const FCPtrAttributeMapPtr map = readBackWithEmptyPlace();
    QCOMPARE(map->getValues().size(), 2u);
    QVERIFY(map->getValues(0) == NullFC);
    QVERIFY(GroupPtr::dcast(map->getValues(1)));
}

void tst_SceneFileValues::aStateWithEmptyPlacesTakesChunks()
{
    SceneFileHandler::the().setOptions("osg", "lists=replace");
    std::istringstream text("State { chunks [ NULL ] }");
    const FCPtrStore top = SceneFileHandler::the().readTopNodes(text, "osg", nullptr);
    const RefPtr<StatePtr> state(StatePtr::dcast(top.at(0)));
    const BlendChunkPtr chunk = BlendChunk::create();
    QVERIFY(state->addChunk(chunk));
    QVERIFY(state->getChunk(BlendChunk::getClassType()) == chunk);
}

void tst_SceneFileValues::bindingsOfAttachmentsAreReportedAndGiveWay()
{
    const NodeRefPtr node(named("first"));
    const NamePtr second = Name::create();
    second->getFieldPtr()->setValue("second");
    node->addAttachment(second, 1);
    const NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    QVERIFY(contains(m_text->takeLog(),
        "WARNING:  Scene file, field attachments of Node: the binding 1 of a Name"));
    QCOMPARE(copy->getSFAttachments()->getValue().size(), std::size_t(1));
    QCOMPARE(getName(copy), "second");
}

void tst_SceneFileValues::infiniteNumbersReadBack()
{
    const DistanceLODPtr lod = DistanceLOD::create();
    const Real32 infinite = std::numeric_limits<Real32>::infinity();
    lod->getRange().push_back(infinite);
    lod->getRange().push_back(-infinite);
    const NodePtr copy = m_text->readFirst(m_text->writeCore(lod));
    const auto read = DistanceLODPtr::dcast(copy->getCore());
    QCOMPARE(read->getRange(0), infinite);
    QCOMPARE(read->getRange(1), -infinite);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileValues::whatIsNoNumberIsWrittenAsZeroAndReported()
{
    const DistanceLODPtr lod = DistanceLOD::create();
    lod->getRange().push_back(-std::numeric_limits<Real32>::quiet_NaN());
    const std::string text = m_text->writeCore(lod);
    QVERIFY(contains(m_text->takeLog(), "field range of DistanceLOD: what is not a number"));
    const NodePtr copy = m_text->readFirst(text);
    QCOMPARE(DistanceLODPtr::dcast(copy->getCore())->getRange(0), 0.f);
}

void tst_SceneFileValues::theDepthOfASphereIsReported_data()
{
    QTest::addColumn<float>("z");
    QTest::addColumn<bool>("isReported");

    QTest::newRow("that of its height") << 2.f << false;
    QTest::newRow("another") << 3.f << true;
}

void tst_SceneFileValues::theDepthOfASphereIsReported()
{
    QFETCH(float, z);
    const NodeRefPtr node(makeCoredNode<Group>());
    DynamicVolume &volume = node->getVolume(false);
    volume.setVolumeType(DynamicVolume::SPHERE_VOLUME);
    static_cast<SphereVolume &>(volume.getInstance()).setValue(Pnt3f(1, 2, z), 4);
    volume.instanceChanged();
    const NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    QTEST(contains(m_text->takeLog(), "field volume of Node: the z of a sphere"), "isReported");
    Pnt3f center;
    copy->getVolume(false).getCenter(center);
    QVERIFY(center == Pnt3f(1, 2, 2));
}

QTEST_APPLESS_MAIN(tst_SceneFileValues)
#include "tst_scenefilevalues.moc"
