#include "NotInStock.h"
#include "SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGDistanceLOD.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGStringAttributeMap.h>
#include <OpenSG/OSGSwitch.h>

#include <QtTest>

#include <sstream>

using namespace osg;

class tst_SceneFileWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aSceneHasTheKnownForm();
    void longListsAreBrokenAtSixtyCharacters();
    void internalAttachmentsAreLeftOut();
    void whatIsReachedTwiceIsDefinedAndUsed();
    void anUnnamedSharedContainerIsCalledByTypeAndId();
    void namesThatTheFormatCannotTellAreReplaced_data();
    void namesThatTheFormatCannotTellAreReplaced();
    void aCycleEndsInUse();
    void emptyPlacesInAListAreWrittenAsNull();

    void fieldsThatReadersStumbleOverAreWrittenOnlyIfNeeded();

    void aSceneTooDeepIsNotWritten();
    void theDeepestSceneReadsBack();
    void aStreamThatFailsIsReported();

private:
    NodePtr named(const std::string &name) const;

    std::unique_ptr<SceneText> m_text;
};

namespace {

const char *const expectedScene = R"(#OSG V1.0 
Node {
    attachments [ 
        Name {
            internal FALSE
            name "Deck 1"
        }
     ] 
    volume 0.000000e+00 0.000000e+00 0.000000e+00 0.000000e+00 0.000000e+00 0.000000e+00
    travMask 7
    children [
        Node {
            attachments [  ] 
            volume 0.000000e+00 0.000000e+00 0.000000e+00 0.000000e+00 0.000000e+00 0.000000e+00
            travMask 4294967295
            children [
            ]
            core NULL
        }
    ]
    core
        DistanceLOD {
            attachments [  ] 
            center 1.000000e+00 2.000000e+00 -5.000000e-01
            range [
              
            ]
        }
}
)";

NodePtr chain(std::size_t length)
{
    NodePtr top = Node::create();
    for (std::size_t i = 1; i < length; ++i) {
        const NodePtr above = Node::create();
        above->addChild(top);
        top = above;
    }
    return top;
}

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

void tst_SceneFileWriter::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileWriter::init()
{
    m_text = std::make_unique<SceneText>();
}

void tst_SceneFileWriter::cleanup()
{
    m_text.reset();
}

NodePtr tst_SceneFileWriter::named(const std::string &name) const
{
    const NodePtr node = makeCoredNode<Group>();
    setName(node, name);
    return node;
}

void tst_SceneFileWriter::aSceneHasTheKnownForm()
{
    DistanceLODPtr lod;
    const NodeRefPtr node(makeCoredNode<DistanceLOD>(&lod));
    lod->setCenter(Pnt3f(1, 2, -.5f));
    setName(node.get(), "Deck 1");
    node->setTravMask(7);
    node->addChild(Node::create());
    QCOMPARE(m_text->write(node.get()), std::string(expectedScene));
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileWriter::longListsAreBrokenAtSixtyCharacters()
{
    const DistanceLODPtr lod = DistanceLOD::create();
    for (int i = 0; i < 5; ++i) {
        lod->getRange().push_back(Real32(i));
    }
    QVERIFY(contains(m_text->writeCore(lod),
        "            range [\n"
        "                0.000000e+00, 1.000000e+00, 2.000000e+00, 3.000000e+00, \n"
        "                4.000000e+00\n"
        "            ]\n"));
}

void tst_SceneFileWriter::internalAttachmentsAreLeftOut()
{
    const GroupPtr group = Group::create();
    const StringAttributeMapPtr attributes = StringAttributeMap::create();
    attributes->setInternal(true);
    group->addAttachment(attributes);
    QVERIFY(contains(m_text->writeCore(group), "        Group {\n            attachments [  ] \n"));
}

void tst_SceneFileWriter::whatIsReachedTwiceIsDefinedAndUsed()
{
    const NodeRefPtr root(makeCoredNode<Group>());
    const SwitchPtr core = Switch::create();
    setName(core, "Gate");
    root->addChild(makeNodeFor(core));
    root->addChild(makeNodeFor(core));
    const std::string text = m_text->write(root.get());
    QVERIFY(contains(text, "            core\n                DEF Gate Switch {\n"));
    QVERIFY(contains(text, "            core\n                USE Gate\n"));
}

void tst_SceneFileWriter::anUnnamedSharedContainerIsCalledByTypeAndId()
{
    const NodeRefPtr root(makeCoredNode<Group>());
    const SwitchPtr core = Switch::create();
    root->addChild(makeNodeFor(core));
    root->addChild(makeNodeFor(core));
    QVERIFY(contains(m_text->write(root.get()),
        "USE Switch" + std::to_string(core.getFieldContainerId()) + "\n"));
}

void tst_SceneFileWriter::namesThatTheFormatCannotTellAreReplaced_data()
{
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("blank") << QByteArray("Deck 1");
    QTest::newRow("quote") << QByteArray("a\"b");
    QTest::newRow("begins with a digit") << QByteArray("1st");
    QTest::newRow("bracket") << QByteArray("a[1]");
    QTest::newRow("reserved") << QByteArray("USE");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("that of another") << QByteArray("Twin");
}

void tst_SceneFileWriter::namesThatTheFormatCannotTellAreReplaced()
{
    NOT_IN_STOCK("stock 1.8 writes such names as they are");
    QFETCH(QByteArray, name);
    const NodeRefPtr root(makeCoredNode<Group>());
    const SwitchPtr twin = Switch::create();
    const SwitchPtr core = Switch::create();
    setName(twin, "Twin");
    setName(core, name.toStdString());
    for (const SwitchPtr &each : { twin, twin, core, core }) {
        root->addChild(makeNodeFor(each));
    }
    const NodePtr copy = m_text->readFirst(m_text->write(root.get()));
    QVERIFY(copy->getChild(2)->getCore() == copy->getChild(3)->getCore());
    QVERIFY(copy->getChild(2)->getCore() != copy->getChild(1)->getCore());
    QCOMPARE(QByteArray(getName(copy->getChild(3)->getCore())), name);
}

void tst_SceneFileWriter::aCycleEndsInUse()
{
    PointLightPtr light;
    const NodeRefPtr node(makeCoredNode<PointLight>(&light));
    light->setBeacon(node.get());
    setName(node.get(), "Lamp");
    const std::string text = m_text->write(node.get());
    QVERIFY(contains(text, "DEF Lamp Node {\n"));
    QVERIFY(contains(text, "            beacon\n                USE Lamp\n"));
}

void tst_SceneFileWriter::emptyPlacesInAListAreWrittenAsNull()
{
    const MaterialGroupPtr core = MaterialGroup::create();
    const ChunkMaterialPtr material = ChunkMaterial::create();
    core->setMaterial(material);
    material->getMFChunks()->push_back(NullFC);
    QVERIFY(contains(m_text->writeCore(core),
        "                    chunks [\n                        NULL\n                    ]\n"));
}

void tst_SceneFileWriter::fieldsThatReadersStumbleOverAreWrittenOnlyIfNeeded()
{
    NOT_IN_STOCK("stock 1.8 writes every field");
    const MaterialGroupPtr core = MaterialGroup::create();
    const ChunkMaterialPtr material = ChunkMaterial::create();
    const SHLChunkPtr chunk = SHLChunk::create();
    const NodeRefPtr node(makeNodeFor(core));
    core->setMaterial(material);
    material->addChunk(chunk);
    QVERIFY(!contains(m_text->write(node.get()), "programParameterNames"));
    chunk->getProgramParameterNames().push_back(36313);
    QVERIFY(contains(m_text->write(node.get()), "programParameterNames [\n"));
}

void tst_SceneFileWriter::aSceneTooDeepIsNotWritten()
{
    NOT_IN_STOCK("stock 1.8 knows no limit");
    const NodeRefPtr node(chain(1001));
    QCOMPARE(m_text->write(node.get()), std::string());
    QVERIFY(contains(m_text->takeLog(), "WARNING:  Scene file: more than 1000 containers"));
}

void tst_SceneFileWriter::theDeepestSceneReadsBack()
{
    const NodeRefPtr node(chain(1000));
    NodePtr copy = m_text->readFirst(m_text->write(node.get()));
    std::size_t depth = 1;
    for (; copy->getNChildren() == 1; ++depth) {
        copy = copy->getChild(0);
    }
    QCOMPARE(depth, std::size_t(1000));
}

void tst_SceneFileWriter::aStreamThatFailsIsReported()
{
    const NodeRefPtr node(named("A"));
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    QVERIFY(!SceneFileHandler::the().write(node.get(), stream, "osg"));
    QVERIFY(contains(m_text->takeLog(), "WARNING:  "));
}

QTEST_APPLESS_MAIN(tst_SceneFileWriter)
#include "tst_scenefilewriter.moc"
