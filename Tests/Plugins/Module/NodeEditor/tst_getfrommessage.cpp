#include <kavoConsoleCapture.h>
#include <kavoGetFromMessage.h>
#include <kavoNodePtr.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGNode.h>

#include <QtTest>

class tst_GetFromMessage : public QObject
{
    Q_OBJECT

private slots:
    void aMissingAttributeIsSilentlyFalse();
    void aNullNodeOfTheRightTypeIsFound();
    void theStoredNodeIsCopiedOut();
    void aNodeIsNoMaterial();
    void theErrorNamesKeyAndTypesAndShowsTheCallStack();
    void aDerivedHandleIsAnotherType();
    void aValueOfAnotherTypeLeavesTheResultUntouched();
};

void tst_GetFromMessage::aMissingAttributeIsSilentlyFalse()
{
    const kavoNodePtr kept(osg::Node::create());
    osg::NodePtr node = kept;
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!getFromMessage(kavoMessage(), "node", node));
    QCOMPARE(errors.text(), QByteArray());
    QVERIFY(node == osg::NodePtr(kept));
}

void tst_GetFromMessage::aNullNodeOfTheRightTypeIsFound()
{
    const kavoNodePtr kept(osg::Node::create());
    osg::NodePtr node = kept;
    kavoMessage message;
    message.set("node", osg::NodePtr());
    QVERIFY(getFromMessage(message, "node", node));
    QVERIFY(node == osg::NullFC);
}

void tst_GetFromMessage::theStoredNodeIsCopiedOut()
{
    const kavoNodePtr kept(osg::Node::create());
    osg::NodePtr node;
    kavoMessage message;
    message.set("node", osg::NodePtr(kept));
    QVERIFY(getFromMessage(message, "node", node));
    QVERIFY(node == osg::NodePtr(kept));
}

void tst_GetFromMessage::aNodeIsNoMaterial()
{
    osg::MaterialPtr material;
    kavoMessage message;
    message.set("material", osg::NodePtr());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!getFromMessage(message, "material", material));
    QVERIFY(!message.get("material").empty());
}

void tst_GetFromMessage::theErrorNamesKeyAndTypesAndShowsTheCallStack()
{
    osg::NodePtr node;
    kavoMessage message;
    message.set("a 'key'", osg::MaterialPtr());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!getFromMessage(message, "a 'key'", node));
    const QByteArray line = "getFromMessage : Attribute 'a 'key'' has wrong type "
                            "(is:'N3osg5FCPtrINS_22AttachmentContainerPtrENS_8MaterialEEE' != "
                            "req:'N3osg7NodePtrE')!\n";
    QVERIFY2(errors.text().startsWith(line), errors.text().constData());
    QVERIFY(errors.text().size() > line.size());
}

void tst_GetFromMessage::aDerivedHandleIsAnotherType()
{
    osg::MaterialPtr material;
    kavoMessage message;
    message.set("material", osg::ChunkMaterialPtr());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!getFromMessage(message, "material", material));
}

void tst_GetFromMessage::aValueOfAnotherTypeLeavesTheResultUntouched()
{
    const kavoNodePtr kept(osg::Node::create());
    osg::NodePtr node = kept;
    kavoMessage message;
    message.set("node", osg::MaterialPtr());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    QVERIFY(!getFromMessage(message, "node", node));
    QVERIFY(node == osg::NodePtr(kept));
}

KAVO_TEST_MAIN(tst_GetFromMessage)
#include "tst_getfrommessage.moc"
