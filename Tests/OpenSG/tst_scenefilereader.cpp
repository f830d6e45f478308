#include "NotInStock.h"
#include "SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGDistanceLOD.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

#include <algorithm>
#include <sstream>

using namespace osg;

class tst_SceneFileReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aNodeOfTheFileIsBelowANewGroup();
    void aCoreAtTheTopGetsANode();
    void theResultHasNoReferences();
    void commasAndCommentsSeparate();
    void aForeignHeaderIsLoggedAndTheFileRead_data();
    void aForeignHeaderIsLoggedAndTheFileRead();
    void aMissingHeaderIsFine();
    void aByteOrderMarkIsSkipped();

    void integersAreReadAsTheyStand_data();
    void integersAreReadAsTheyStand();
    void stringsKnowTwoEscapes_data();
    void stringsKnowTwoEscapes();
    void boolsAreWordsOfAnyLetterCase_data();
    void boolsAreWordsOfAnyLetterCase();
    void listsOfValuesNeedNoBrackets();
    void aListThatGoesOnIsOneEdit();
    void fieldsThatOtherReadersStumbleOverAreRead_data();
    void fieldsThatOtherReadersStumbleOverAreRead();
    void valuesAreAppendedToThoseOfThePrototype();

    void aDefinitionNamesTheContainer();
    void aNameReadAfterwardsReplacesIt();
    void theFirstDefinitionOfANameWins();
    void anUnknownNameIsLoggedAndTheFieldStays();
    void aCoreAmongTheChildrenGetsANode();
    void nullAmongTheChildrenIsSkipped();
    void aNodeWithoutCoreGetsAGroup_data();
    void aNodeWithoutCoreGetsAGroup();
    void ownersTakeTheirReferences();
    void derivedDataFollows();
    void aPointerMayLeadBackToANodeAround();

private:
    std::unique_ptr<SceneText> m_text;
};

void tst_SceneFileReader::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileReader::init()
{
    m_text = std::make_unique<SceneText>();
}

void tst_SceneFileReader::cleanup()
{
    m_text.reset();
}

void tst_SceneFileReader::aNodeOfTheFileIsBelowANewGroup()
{
    const NodePtr root = m_text->read("#OSG V1.0 \nDEF A Node { core Switch { } }");
    QVERIFY(GroupPtr::dcast(root->getCore()));
    QCOMPARE(root->getNChildren(), 1u);
    QCOMPARE(getName(root->getChild(0)), "A");
}

void tst_SceneFileReader::aCoreAtTheTopGetsANode()
{
    const NodePtr root = m_text->read("Switch { choice 3 } Node { }");
    QCOMPARE(root->getNChildren(), 2u);
    QCOMPARE(SwitchPtr::dcast(root->getChild(0)->getCore())->getChoice(), 3);
}

void tst_SceneFileReader::theResultHasNoReferences()
{
    std::istringstream text("Node { }");
    const NodePtr root = SceneFileHandler::the().read(text, "osg", nullptr);
    QCOMPARE(root.getRefCount(), 0);
    subRefCP(root);
    QVERIFY(root == NullFC);
}

void tst_SceneFileReader::commasAndCommentsSeparate()
{
    const NodePtr node = m_text->readFirst(
        nodeWithCore("DistanceLOD", "center,,1,2 # of the Earth\n,3 range[1,2,\n3]"));
    const auto lod = DistanceLODPtr::dcast(node->getCore());
    QVERIFY(lod->getCenter() == Pnt3f(1, 2, 3));
    QCOMPARE(lod->getRange().size(), 3u);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileReader::aForeignHeaderIsLoggedAndTheFileRead_data()
{
    QTest::addColumn<QByteArray>("header");

    QTest::newRow("VRML") << QByteArray("#VRML V2.0 utf8");
    QTest::newRow("without the blank at the end") << QByteArray("#OSG V1.0");
}

void tst_SceneFileReader::aForeignHeaderIsLoggedAndTheFileRead()
{
    QFETCH(QByteArray, header);
    QVERIFY(m_text->read(header.toStdString() + "\nNode { }") != NullFC);
    QVERIFY(QString::fromStdString(m_text->takeLog()).startsWith("LOG:  "));
}

void tst_SceneFileReader::aMissingHeaderIsFine()
{
    QVERIFY(m_text->read("Node { }") != NullFC);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileReader::aByteOrderMarkIsSkipped()
{
    QVERIFY(m_text->read("\xef\xbb\xbf#OSG V1.0 \nNode { }") != NullFC);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileReader::integersAreReadAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("decimal") << QByteArray("17") << 17;
    QTest::newRow("plus") << QByteArray("+9") << 9;
    QTest::newRow("minus") << QByteArray("-5") << -5;
    QTest::newRow("leading zero is octal") << QByteArray("010") << 8;
    QTest::newRow("hexadecimal") << QByteArray("0x1F") << 31;
    QTest::newRow("negative hexadecimal") << QByteArray("-0xa") << -10;
    QTest::newRow("too large wraps") << QByteArray("99999999999") << 1215752191;
}

void tst_SceneFileReader::integersAreReadAsTheyStand()
{
    QFETCH(QByteArray, text);
    const NodePtr node = m_text->readFirst(nodeWithCore("Switch", "choice " + text.toStdString()));
    QTEST(SwitchPtr::dcast(node->getCore())->getChoice(), "value");
}

void tst_SceneFileReader::stringsKnowTwoEscapes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("blanks") << QByteArray(R"("two  blanks")") << QByteArray("two  blanks");
    QTest::newRow("quote") << QByteArray(R"("a\"b")") << QByteArray("a\"b");
    QTest::newRow("backslash") << QByteArray(R"("a\\")") << QByteArray("a\\");
    QTest::newRow("no escape") << QByteArray(R"("C:\new")") << QByteArray("C:\\new");
    QTest::newRow("line end") << QByteArray("\"a\nb\"") << QByteArray("a\nb");
    QTest::newRow("hash") << QByteArray("\"#1\"") << QByteArray("#1");
    QTest::newRow("empty") << QByteArray("\"\"") << QByteArray("");
    QTest::newRow("bare word") << QByteArray("Deck-2") << QByteArray("Deck-2");
}

void tst_SceneFileReader::stringsKnowTwoEscapes()
{
    QFETCH(QByteArray, text);
    const NodePtr node
        = m_text->readFirst("Node { attachments Name { name " + text.toStdString() + " } }");
    QTEST(QByteArray(getName(node)), "name");
}

void tst_SceneFileReader::boolsAreWordsOfAnyLetterCase_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("readable");

    QTest::newRow("upper case") << QByteArray("FALSE") << true;
    QTest::newRow("mixed case") << QByteArray("fAlsE") << true;
    QTest::newRow("number") << QByteArray("0") << false;
    QTest::newRow("longer word") << QByteArray("FALSEx") << false;
    QTest::newRow("in quotes") << QByteArray("\"FALSE\"") << false;
}

void tst_SceneFileReader::boolsAreWordsOfAnyLetterCase()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, readable);
    const NodePtr node
        = m_text->readFirst(nodeWithCore("Geometry", "dlistCache " + text.toStdString()));
    QCOMPARE(GeometryPtr::dcast(node->getCore())->getDlistCache(), !readable);
    QCOMPARE(m_text->takeLog().empty(), readable);
}

void tst_SceneFileReader::listsOfValuesNeedNoBrackets()
{
    const NodePtr node = m_text->readFirst(nodeWithCore("DistanceLOD", "range 5 center 1 1 1"));
    const auto lod = DistanceLODPtr::dcast(node->getCore());
    QCOMPARE(lod->getRange().size(), 1u);
    QVERIFY(lod->getCenter() == Pnt3f(1, 1, 1));
}

void tst_SceneFileReader::aListThatGoesOnIsOneEdit()
{
    NOT_IN_STOCK("stock 1.8 ends an edit behind each occurrence");
    ChangeList &changes = *Thread::getCurrentChangeList();
    changes.setReadOnly(false);
    const NodePtr node = m_text->readFirst(
        nodeWithCore("DistanceLOD", "range 1 range [ 2 3 ] range 4 center 1 1 1"));
    changes.setReadOnly(true);
    const auto lod = DistanceLODPtr::dcast(node->getCore());
    const auto isOfRange = [&](const ChangeList::ChangeEntry &entry) {
        return entry.first == lod.getFieldContainerId()
            && entry.second == DistanceLOD::RangeFieldMask;
    };
    QCOMPARE(std::count_if(changes.beginChanged(), changes.endChanged(), isOfRange), 1);
    changes.clearAll();
    QCOMPARE(lod->getRange().size(), 4u);
}

void tst_SceneFileReader::fieldsThatOtherReadersStumbleOverAreRead_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("value");

    QTest::newRow("list of GL enumerations")
        << QByteArray("SHLChunk") << QByteArray("programParameterNames")
        << QByteArray("[ 36313, 36314 ]") << QByteArray("36313, 36314");
    QTest::newRow("integer vectors")
        << QByteArray("GeoNormals3s") << QByteArray("normals") << QByteArray("[ 1 2 3, -4 5 6 ]")
        << QByteArray("1  2  3, -4  5  6");
    QTest::newRow("byte colours") << QByteArray("GeoColors3ub") << QByteArray("Colors")
                                  << QByteArray("[ 255 0 7 ]") << QByteArray("255 0 7");
    QTest::newRow("doubles") << QByteArray("GeoTexCoords1d") << QByteArray("TexCoords")
                             << QByteArray("[ 1.5, 2 ]")
                             << QByteArray("1.500000e+00, 2.000000e+00");
    QTest::newRow("points of two")
        << QByteArray("GeoPositions2f") << QByteArray("positions") << QByteArray("[ 1 2 ]")
        << QByteArray("1.000000e+00  2.000000e+00");
}

void tst_SceneFileReader::fieldsThatOtherReadersStumbleOverAreRead()
{
    NOT_IN_STOCK("stock 1.8 cannot read these fields");
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, text);
    std::istringstream file((type + " { " + field + ' ' + text + " }").toStdString());
    const FCPtrStore containers = SceneFileHandler::the().readTopNodes(file, "osg", nullptr);
    QCOMPARE(m_text->takeLog(), std::string());
    const RefPtr<FieldContainerPtr> container(containers.at(0));
    std::string value;
    QTEST(
        QByteArray(container->getField(field.constData())->getValueByStr(value).c_str()), "value");
}

void tst_SceneFileReader::valuesAreAppendedToThoseOfThePrototype()
{
    const auto prototype = DistanceLODPtr::dcast(DistanceLOD::getClassType().getPrototype());
    prototype->getRange().push_back(7);
    const NodePtr node = m_text->readFirst(nodeWithCore("DistanceLOD", "range [ 8 ]"));
    prototype->getRange().clear();
    const auto lod = DistanceLODPtr::dcast(node->getCore());
    QCOMPARE(lod->getRange().size(), 2u);
    QCOMPARE(lod->getRange(1), 8.f);
}

void tst_SceneFileReader::aDefinitionNamesTheContainer()
{
    const NodePtr node = m_text->readFirst("Node { core DEF Group12 Group { } }");
    QCOMPARE(getName(node->getCore()), "Group12");
}

void tst_SceneFileReader::aNameReadAfterwardsReplacesIt()
{
    const NodePtr node
        = m_text->readFirst("DEF N1 Node { attachments [ Name { name \"Deck 1\" } ] }");
    QCOMPARE(getName(node), "Deck 1");
}

void tst_SceneFileReader::theFirstDefinitionOfANameWins()
{
    const NodePtr root = m_text->read("Node { core DEF C Switch { choice 1 } } "
                                      "Node { core DEF C Switch { choice 2 } } "
                                      "Node { core USE C }");
    QVERIFY(root->getChild(2)->getCore() == root->getChild(0)->getCore());
}

void tst_SceneFileReader::anUnknownNameIsLoggedAndTheFieldStays()
{
    const NodePtr node = m_text->readFirst(nodeWithCore("MaterialGroup", "material USE Chrome"));
    QVERIFY(MaterialGroupPtr::dcast(node->getCore())->getMaterial() == NullFC);
    QCOMPARE(m_text->takeLog(), std::string("LOG:  No FieldContainer found with name Chrome\n"));
}

void tst_SceneFileReader::aCoreAmongTheChildrenGetsANode()
{
    const NodePtr node = m_text->readFirst("Node { children [ Switch { } Node { } ] }");
    QCOMPARE(node->getNChildren(), 2u);
    QVERIFY(SwitchPtr::dcast(node->getChild(0)->getCore()));
}

void tst_SceneFileReader::nullAmongTheChildrenIsSkipped()
{
    QCOMPARE(m_text->readFirst("Node { children [ NULL Node { } NULL ] }")->getNChildren(), 1u);
}

void tst_SceneFileReader::aNodeWithoutCoreGetsAGroup_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("none") << QByteArray("Node { }");
    QTest::newRow("null") << QByteArray("Node { core NULL }");
    QTest::newRow("unknown") << QByteArray("Node { core Starfield { density 5 } }");
}

void tst_SceneFileReader::aNodeWithoutCoreGetsAGroup()
{
    QFETCH(QByteArray, text);
    QVERIFY(GroupPtr::dcast(m_text->readFirst(text.toStdString())->getCore()));
}

void tst_SceneFileReader::ownersTakeTheirReferences()
{
    const NodePtr node = m_text->readFirst(
        nodeWithCore("Geometry", "material DEF M SimpleMaterial { } positions GeoPositions3f { }"));
    const auto geometry = GeometryPtr::dcast(node->getCore());
    QCOMPARE(node->getCore().getRefCount(), 1);
    QCOMPARE(geometry->getMaterial().getRefCount(), 1);
    QCOMPARE(geometry->getPositions().getRefCount(), 1);
}

void tst_SceneFileReader::derivedDataFollows()
{
    const NodePtr node = m_text->readFirst(nodeWithCore("ComponentTransform", "translation 1 2 3"));
    const auto transform = ComponentTransformPtr::dcast(node->getCore());
    QCOMPARE(transform->getMatrix()[3][1], 2.f);
}

void tst_SceneFileReader::aPointerMayLeadBackToANodeAround()
{
    const NodePtr node = m_text->readFirst("DEF Lamp Node { core PointLight { beacon USE Lamp } }");
    QVERIFY(PointLightPtr::dcast(node->getCore())->getBeacon() == node);
}

QTEST_APPLESS_MAIN(tst_SceneFileReader)
#include "tst_scenefilereader.moc"
