#include "LogCapture.h"
#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGTextureChunk.h>

#include <QtTest>

using namespace osg;

/// The tree is a material group with a box; material, chunk, texture and image hang on it.
class tst_CloneTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }
    void init();
    void cleanup();

    void aCloneSharesItsCores();
    void aDeepCloneHasItsOwnCores();
    void valuesAndOrderAreCopied();
    void whatTheCoresReferToIsCopied();
    void whatIsSharedInATreeIsSharedInItsClone();
    void namedTypesStayShared_data();
    void namedTypesStayShared();
    void anUnknownTypeIsReported();
    void attachmentsAreCopiedWithTheirBindings();
    void pointersToNodesOfTheTreeLeadToTheirCopies();
    void pointersToOtherNodesStay();
    void theOriginalIsLeftAsItWas();
    void theCloneOfNothingIsNull();
    void childrenThatAreNullAreLeftOut();

private:
    static MaterialGroupPtr groupOf(const NodePtr &node);
    static TextureChunkPtr textureOf(const NodePtr &node);

    NodeRefPtr m_root;
};

MaterialGroupPtr tst_CloneTree::groupOf(const NodePtr &node)
{
    return MaterialGroupPtr::dcast(node->getCore());
}

TextureChunkPtr tst_CloneTree::textureOf(const NodePtr &node)
{
    return TextureChunkPtr::dcast(
        ChunkMaterialPtr::dcast(groupOf(node)->getMaterial())->find(TextureChunk::getClassType()));
}

void tst_CloneTree::init()
{
    const TextureChunkPtr texture = TextureChunk::create();
    ImagePtr image = Image::create();
    image->set(Image::OSG_L_PF, 2, 2);
    texture->setImage(image);
    const ChunkMaterialPtr material = ChunkMaterial::create();
    material->addChunk(texture);
    MaterialGroupPtr group;
    m_root = NodeRefPtr(makeCoredNode<MaterialGroup>(&group));
    group->setMaterial(material);
    m_root->addChild(makeBox(1.f, 1.f, 1.f, 1, 1, 1));
    m_root->addChild(makeCoredNode<Group>());
    setName(m_root->getChild(1), "second");
}

void tst_CloneTree::cleanup()
{
    m_root = NullFC;
}

void tst_CloneTree::aCloneSharesItsCores()
{
    const NodeRefPtr copy(cloneTree(m_root.get()));
    QVERIFY(copy != m_root);
    QVERIFY(copy->getCore() == m_root->getCore());
    QVERIFY(copy->getChild(0)->getCore() == m_root->getChild(0)->getCore());
    QCOMPARE(getName(copy->getChild(1)), "second");
}

void tst_CloneTree::aDeepCloneHasItsOwnCores()
{
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    QVERIFY(copy->getCore() != m_root->getCore());
    QVERIFY(groupOf(copy.get()) != NullFC);
    QCOMPARE(copy->getCore()->getParents().getSize(), UInt32(1));
    QVERIFY(copy->getCore()->getParents()[0] == copy.get());
}

void tst_CloneTree::valuesAndOrderAreCopied()
{
    m_root->setTravMask(5);
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    QCOMPARE(copy->getTravMask(), UInt32(5));
    QCOMPARE(copy->getNChildren(), UInt32(2));
    QVERIFY(GeometryPtr::dcast(copy->getChild(0)->getCore()) != NullFC);
    QCOMPARE(getName(copy->getChild(1)), "second");
    QVERIFY(copy->getChild(1)->getParent() == copy.get());
}

void tst_CloneTree::whatTheCoresReferToIsCopied()
{
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    QVERIFY(groupOf(copy.get())->getMaterial() != groupOf(m_root.get())->getMaterial());
    QVERIFY(textureOf(copy.get()) != textureOf(m_root.get()));
    QVERIFY(textureOf(copy.get())->getImage() != textureOf(m_root.get())->getImage());
    QCOMPARE(textureOf(copy.get())->getImage()->getWidth(), 2);
    QCOMPARE(textureOf(copy.get())->getImage().getRefCount(), 1);
}

void tst_CloneTree::whatIsSharedInATreeIsSharedInItsClone()
{
    const NodePtr twin = Node::create();
    twin->setCore(m_root->getChild(0)->getCore());
    m_root->addChild(twin);
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    QVERIFY(copy->getChild(2)->getCore() == copy->getChild(0)->getCore());
    QCOMPARE(copy->getChild(0)->getCore().getRefCount(), 2);
}

void tst_CloneTree::namedTypesStayShared_data()
{
    QTest::addColumn<QByteArray>("types");
    QTest::addColumn<bool>("material");
    QTest::addColumn<bool>("texture");
    QTest::addColumn<bool>("image");
    QTest::addColumn<bool>("isInStock");
    QTest::newRow("none") << QByteArray() << false << false << false << true;
    QTest::newRow("a base type") << QByteArray("Material") << true << true << true << false;
    QTest::newRow("the type itself") << QByteArray("Image") << false << false << true << true;
    QTest::newRow("several") << QByteArray("Image,TextureChunk") << false << true << true << true;
    QTest::newRow("with blanks") << QByteArray("\tImage , StateChunk ") << false << true << true
                                 << false;
    QTest::newRow("with empty names") << QByteArray(",Image, ,") << false << false << true << false;
}

void tst_CloneTree::namedTypesStayShared()
{
    QFETCH(QByteArray, types);
    QFETCH(bool, isInStock);
    if (!isInStock) {
        NOT_IN_STOCK("derived types and blanks are a choice of ours");
    }
    const LogCapture log;
    const NodeRefPtr copy(deepCloneTree(m_root.get(), types.toStdString()));
    QCOMPARE(log.text, QByteArray());
    QTEST(groupOf(copy.get())->getMaterial() == groupOf(m_root.get())->getMaterial(), "material");
    QTEST(textureOf(copy.get()) == textureOf(m_root.get()), "texture");
    QTEST(textureOf(copy.get())->getImage() == textureOf(m_root.get())->getImage(), "image");
}

void tst_CloneTree::anUnknownTypeIsReported()
{
    NOT_IN_STOCK("that is a choice of ours");
    LogCapture log;
    const NodeRefPtr copy(deepCloneTree(m_root.get(), "Nothing"));
    QVERIFY(log.text.contains("WARNING") && log.text.contains("Nothing"));
}

void tst_CloneTree::attachmentsAreCopiedWithTheirBindings()
{
    const NamePtr name = Name::create();
    name->getFieldPtr()->setValue("seven");
    m_root->addAttachment(name, 7);
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    const NamePtr copied = NamePtr::dcast(copy->findAttachment(Name::getClassType(), 7));
    QVERIFY(copied != NullFC && copied != name);
    QCOMPARE(copied->getFieldPtr()->getValue(), std::string("seven"));
    QVERIFY(copy->findAttachment(Name::getClassType(), 0) == NullFC);
    QCOMPARE(name.getRefCount(), 1);
}

void tst_CloneTree::pointersToNodesOfTheTreeLeadToTheirCopies()
{
    PointLightPtr light;
    m_root->addChild(makeCoredNode<PointLight>(&light));
    light->setBeacon(m_root->getChild(1));
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    const PointLightPtr copied = PointLightPtr::dcast(copy->getChild(2)->getCore());
    QVERIFY(copied->getBeacon() == copy->getChild(1));
}

void tst_CloneTree::pointersToOtherNodesStay()
{
    const NodeRefPtr elsewhere(makeCoredNode<Group>());
    PointLightPtr light;
    m_root->addChild(makeCoredNode<PointLight>(&light));
    light->setBeacon(elsewhere.get());
    const NodeRefPtr copy(deepCloneTree(m_root.get()));
    const PointLightPtr copied = PointLightPtr::dcast(copy->getChild(2)->getCore());
    QVERIFY(copied->getBeacon() == elsewhere.get());
}

void tst_CloneTree::theOriginalIsLeftAsItWas()
{
    const NodeCorePtr box = m_root->getChild(0)->getCore();
    const Int32 positions = GeometryPtr::dcast(box)->getPositions().getRefCount();
    {
        const NodeRefPtr copy(deepCloneTree(m_root.get()));
    }
    QCOMPARE(box.getRefCount(), 1);
    QCOMPARE(box->getParents().getSize(), UInt32(1));
    QCOMPARE(GeometryPtr::dcast(box)->getPositions().getRefCount(), positions);
    QCOMPARE(textureOf(m_root.get()).getRefCount(), 1);
}

void tst_CloneTree::theCloneOfNothingIsNull()
{
    QVERIFY(cloneTree(NullFC) == NullFC);
    QVERIFY(deepCloneTree(NullFC) == NullFC);
}

void tst_CloneTree::childrenThatAreNullAreLeftOut()
{
    NOT_IN_STOCK("stock 1.8 is not known to stand it");
    const NodeRefPtr node(makeCoredNode<Group>());
    node->getField("children")->pushValueByStr("any text");
    node->addChild(makeCoredNode<Group>());
    QCOMPARE(node->getNChildren(), UInt32(2));
    const NodeRefPtr shallow(cloneTree(node.get()));
    const NodeRefPtr deep(deepCloneTree(node.get()));
    QCOMPARE(shallow->getNChildren(), UInt32(1));
    QCOMPARE(deep->getNChildren(), UInt32(1));
}

QTEST_APPLESS_MAIN(tst_CloneTree)
#include "tst_clonetree.moc"
