#include "SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>

#include <QtTest>

#include <algorithm>
#include <sstream>
#include <utility>

using namespace osg;

namespace {

/// Takes the first two nodes out of the tree, and keeps the first.
class TakingOp : public GraphOp
{
public:
    TakingOp()
        : GraphOp("Take")
    {
    }
    GraphOp *create() override { return new TakingOp; }
    void setParams(const std::string) override { }
    std::string usage() override { return "no parameters"; }
    bool traverse(NodePtr &root) override
    {
        const NodePtr parent = root->getChild(0);
        taken = NodeRefPtr(parent->getChild(0));
        parent->subChild(taken.get());
        parent->subChild(0u);
        return true;
    }

    static NodeRefPtr taken;
};

NodeRefPtr TakingOp::taken;

/// Takes the first node out of the tree, and keeps its material.
class MaterialTakingOp : public GraphOp
{
public:
    MaterialTakingOp()
        : GraphOp("TakeMaterial")
    {
    }
    GraphOp *create() override { return new MaterialTakingOp; }
    void setParams(const std::string) override { }
    std::string usage() override { return "no parameters"; }
    bool traverse(NodePtr &root) override
    {
        const auto group = MaterialGroupPtr::dcast(root->getChild(0)->getCore());
        taken = MaterialRefPtr(group->getMaterial());
        root->subChild(0u);
        return true;
    }

    static MaterialRefPtr taken;
};

MaterialRefPtr MaterialTakingOp::taken;

}

/// Who holds the containers of a file, while it is read and afterwards.
class tst_SceneFileOwnership : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aContainerOutlivesThePlaceItWasIn_data();
    void aContainerOutlivesThePlaceItWasIn();
    void whatTheSceneDoesNotLeadToIsDestroyed_data();
    void whatTheSceneDoesNotLeadToIsDestroyed();
    void whatIsOnlyPointedToStays();
    void aContainerThatWasReplacedCanBeUsed();
    void theSecondValueOfAPointerReplacesTheFirst();
    void aMaterialAtTheTopCanBeUsedFurtherDown();
    void topNodesSurviveTheOperations();
    void whatIsPointedToSurvivesTheOperations_data();
    void whatIsPointedToSurvivesTheOperations();
    void whatAnOperationHoldsStaysWhole_data();
    void whatAnOperationHoldsStaysWhole();
    void whatAnOperationHoldsStaysWholeWhileChangesAreIgnored();
    void whatIsLeftOutIsReported();
    void containersWithoutPlaceAreNoScene();

private:
    static std::size_t livingContainers();

    std::unique_ptr<SceneText> m_text;
};

void tst_SceneFileOwnership::initTestCase()
{
    QVERIFY(osgInit(0, nullptr));
}

void tst_SceneFileOwnership::init()
{
    m_text = std::make_unique<SceneText>();
}

void tst_SceneFileOwnership::cleanup()
{
    m_text.reset();
}

std::size_t tst_SceneFileOwnership::livingContainers()
{
    const auto &store = *FieldContainerFactory::the()->getFieldContainerStore();
    return store.size() - std::size_t(std::count(store.begin(), store.end(), NullFC));
}

void tst_SceneFileOwnership::aContainerOutlivesThePlaceItWasIn_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("core at the top")
        << QByteArray("DEF c Group { } Node { core USE c core Group { } }");
    QTest::newRow("attachment at the top")
        << QByteArray("DEF a StringAttributeMap { } "
                      "Node { attachments [ USE a StringAttributeMap { } ] }");
    QTest::newRow("material at the top")
        << QByteArray("DEF M ChunkMaterial { } "
                      "Node { core MaterialGroup { material USE M material SimpleMaterial { } } }");
    QTest::newRow("attachment around")
        << QByteArray("Node { attachments [ DEF t FCPtrAttributeMap { values [ Node { attachments "
                      "[ USE t FCPtrAttributeMap { } ] } ] keys [ \"x\" ] } ] }");
    QTest::newRow("core around") << QByteArray(
        "Node { core DEF c ClipPlane { "
        "beacon Node { core USE c core Group { } } on TRUE } }");
    QTest::newRow("value of an attachment")
        << QByteArray("Node { attachments [ FCPtrAttributeMap { keys [ \"k\" ] "
                      "values [ DEF m SimpleMaterial { } ] } ] "
                      "core MaterialGroup { material USE m material NULL } }");
    QTest::newRow("child of a node that goes")
        << QByteArray("DEF A Node { } Node { core PointLight { "
                      "beacon Node { children [ USE A ] } } core Group { } }");
}

void tst_SceneFileOwnership::aContainerOutlivesThePlaceItWasIn()
{
    QFETCH(QByteArray, text);
    const NodePtr scene = m_text->read(text.toStdString());
    m_text->takeLog();
    const std::string written = m_text->write(scene);
    QVERIFY(!written.empty());
    QVERIFY(m_text->read(written) != NullFC);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileOwnership::whatTheSceneDoesNotLeadToIsDestroyed_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("material at the top") << QByteArray("SimpleMaterial { } Node { }");
    QTest::newRow("all in a camera at the top")
        << QByteArray("PerspectiveCamera { beacon Node { children [ Node { } ] } } Node { }");
    QTest::newRow("core that was replaced")
        << QByteArray("Node { core DEF c PointLight { beacon Node { } } core Group { } }");
    QTest::newRow("circle") << QByteArray(
        "Node { core PointLight { beacon Node { attachments [ DEF t TextureChunk { "
        "image Image { attachments [ USE t ] } } ] } } core Group { } }");
    QTest::newRow("chunk, which its material's state holds, too")
        << QByteArray("ChunkMaterial { chunks BlendChunk { } } Node { }");
    QTest::newRow("chunk of a material that was replaced")
        << QByteArray("Node { core MaterialGroup { "
                      "material ChunkMaterial { chunks BlendChunk { } } material NULL } }");
    QTest::newRow("what a class holds without saying so")
        << QByteArray("Train { wagons [ Wagon { } Wagon { } ] } Node { }");
    QTest::newRow("containers without place")
        << QByteArray("SimpleMaterial { } Image { } State { }");
}

void tst_SceneFileOwnership::whatTheSceneDoesNotLeadToIsDestroyed()
{
    QFETCH(QByteArray, text);
    const std::size_t before = livingContainers();
    m_text->read(text.toStdString());
    m_text = std::make_unique<SceneText>();
    QCOMPARE(livingContainers(), before);
}

void tst_SceneFileOwnership::whatIsOnlyPointedToStays()
{
    const NodePtr node
        = m_text->readFirst("Node { core PointLight { beacon Node { core Switch { } } } }");
    const NodePtr beacon = PointLightPtr::dcast(node->getCore())->getBeacon();
    QVERIFY(SwitchPtr::dcast(beacon->getCore()));
    QCOMPARE(beacon.getRefCount(), 0);
    subRefCP(beacon);
}

void tst_SceneFileOwnership::aContainerThatWasReplacedCanBeUsed()
{
    const NodePtr root = m_text->read(
        "Node { core DEF c Switch { choice 4 } core Group { } } Node { core USE c }");
    QCOMPARE(SwitchPtr::dcast(root->getChild(1)->getCore())->getChoice(), 4);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileOwnership::theSecondValueOfAPointerReplacesTheFirst()
{
    const NodePtr node = m_text->readFirst(nodeWithCore("MaterialGroup",
        "material SimpleMaterial { shininess 3 } material SimpleMaterial { shininess 4 }"));
    const MaterialPtr material = MaterialGroupPtr::dcast(node->getCore())->getMaterial();
    QCOMPARE(SimpleMaterialPtr::dcast(material)->getShininess(), 4.f);
    QCOMPARE(material.getRefCount(), 1);
}

void tst_SceneFileOwnership::aMaterialAtTheTopCanBeUsedFurtherDown()
{
    const NodePtr root
        = m_text->read("DEF M SimpleMaterial { } Node { core MaterialGroup { material USE M } }");
    QCOMPARE(root->getNChildren(), 1u);
    const auto group = MaterialGroupPtr::dcast(root->getChild(0)->getCore());
    QCOMPARE(group->getMaterial().getRefCount(), 1);
}

void tst_SceneFileOwnership::topNodesSurviveTheOperations()
{
    std::istringstream text("DEF M SimpleMaterial { } Node { children [ "
                            "Node { core MaterialGroup { material SimpleMaterial { "
                            "attachments Name { name \"M\" } } } } "
                            "Node { core MaterialGroup { material USE M } } ] }");
    const FCPtrStore top = SceneFileHandler::the().readTopNodes(text, "osg");
    QCOMPARE(top.size(), std::size_t(2));
    QVERIFY(SimpleMaterialPtr::dcast(top[0]));
    QCOMPARE(top[0].getRefCount(), 0);
    subRefCP(top[0]);
    subRefCP(top[1]);
}

void tst_SceneFileOwnership::whatIsPointedToSurvivesTheOperations_data()
{
    QTest::addColumn<QByteArray>("text");

    const QByteArray named = "Node { core MaterialGroup { material SimpleMaterial { "
                             "attachments [ Name { name \"m\" } ] } } } ";
    QTest::newRow("after it") << "Node { children [ " + named
            + "Node { core MaterialGroup { material DEF m SimpleMaterial { attachments [ "
              "Name { name \"m\" } ] } } } ] attachments [ "
              "FCPtrAttributeMap { keys [ \"k\" ] values [ USE m ] } ] }";
    QTest::newRow("before it") << "Node { attachments [ FCPtrAttributeMap { keys [ \"k\" ] "
                                  "values [ DEF m SimpleMaterial { attachments [ "
                                  "Name { name \"m\" } ] } ] } ] children [ "
            + named + "Node { core MaterialGroup { material USE m } } ] }";
}

void tst_SceneFileOwnership::whatIsPointedToSurvivesTheOperations()
{
    QFETCH(QByteArray, text);
    std::istringstream stream(text.toStdString());
    const NodeRefPtr root(SceneFileHandler::the().read(stream, "osg"));
    const std::string written = m_text->write(root.get());
    QVERIFY(written.find("FCPtrAttributeMap") != std::string::npos);
    QVERIFY(m_text->read(written) != NullFC);
    QCOMPARE(m_text->takeLog(), std::string());
}

void tst_SceneFileOwnership::whatAnOperationHoldsStaysWhole_data()
{
    QTest::addColumn<QByteArray>("second");

    QTest::newRow("nothing leads to it") << QByteArray("Node { }");
    QTest::newRow("a lost pointer without reference leads to it")
        << QByteArray("Node { attachments [ FCPtrAttributeMap { keys [ \"k\" ] "
                      "values [ USE a ] } ] }");
}

void tst_SceneFileOwnership::whatAnOperationHoldsStaysWhole()
{
    QFETCH(QByteArray, second);
    TakingOp prototype;
    GraphOpFactory::the().registerOp(&prototype);
    GraphOpSeq sequence("Take()");
    std::istringstream text("Node { children [ DEF a Node { attachments [ Name { name \"a\" } ] "
                            "children [ Node { attachments [ Name { name \"b\" } ] } ] } "
        + second.toStdString() + " ] }");
    const NodeRefPtr root(SceneFileHandler::the().read(text, "osg", &sequence));
    const NodeRefPtr taken = std::exchange(TakingOp::taken, NodeRefPtr());
    GraphOpFactory::the().unRegisterOp(&prototype);
    QCOMPARE(taken.get().getRefCount(), 1);
    QCOMPARE(getName(taken.get()), "a");
    QCOMPARE(getName(taken->getChild(0)), "b");
}

// What is read takes no references then.
void tst_SceneFileOwnership::whatAnOperationHoldsStaysWholeWhileChangesAreIgnored()
{
    MaterialTakingOp prototype;
    GraphOpFactory::the().registerOp(&prototype);
    GraphOpSeq sequence("TakeMaterial()");
    std::istringstream text("Node { core MaterialGroup { material SimpleMaterial { "
                            "attachments [ Name { name \"x\" } ] } } }");
    FieldContainerPtr::setIgnoreChanged(true);
    const NodeRefPtr root(SceneFileHandler::the().read(text, "osg", &sequence));
    FieldContainerPtr::setIgnoreChanged(false);
    const MaterialRefPtr taken = std::exchange(MaterialTakingOp::taken, MaterialRefPtr());
    GraphOpFactory::the().unRegisterOp(&prototype);
    QCOMPARE(taken.get().getRefCount(), 1);
    QCOMPARE(getName(taken.get()), "x");
}

void tst_SceneFileOwnership::whatIsLeftOutIsReported()
{
    QVERIFY(m_text->read("DEF used SimpleMaterial { } SimpleMaterial { } "
                         "Node { core MaterialGroup { material USE used } }")
        != NullFC);
    QCOMPARE(m_text->takeLog(),
        std::string("WARNING:  A SimpleMaterial at the top is left out: nothing in the scene leads "
                    "to it\n"));
}

void tst_SceneFileOwnership::containersWithoutPlaceAreNoScene()
{
    QVERIFY(m_text->read("SimpleMaterial { } Image { }") == NullFC);
    QCOMPARE(m_text->takeLog(), std::string("WARNING:  There is no scene in the stream\n"));
}

QTEST_APPLESS_MAIN(tst_SceneFileOwnership)
#include "tst_scenefileownership.moc"
