#include "kavoTestLoad.h"

#include "Basics/kavoTaskError.h"
#include "Files/kavoOsgReader.h"
#include "Files/kavoOsgWriter.h"
#include "Scene/kavoCameraRegistry.h"
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OSGAnimNodeBase.h>
#include <OSGTransformVariantList.h>
#include <OSGValuePairBase.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGRegisterCombinersChunk.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace kavoTestLoad;

class tst_OsgWriter : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aModelComesBackNodeByNode_data();
    void aModelComesBackNodeByNode();
    void camerasComeBackWithTheirNodes();
    void savingLeavesNoTraceInTheScene();
    void valuePairsComeBack();
    void animationsComeBackWithTheirNodes();
    void variantsComeBackReferenced();
    void textsComeBackAsTheyWere();
    void listsComeBackAsTheyWere();

    void otherSuffixesAreRefused();
    void withoutASceneNothingIsSaved();
    void aFailedSaveLeavesTheFileAsItWas();

private:
    QString path(const char *name) const { return m_folder->filePath(name); }
    void write(const QString &file, const QByteArray &text) const;
    osg::NodePtr reload(const QString &file);

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QStringList names(const osg::NodePtr &root)
{
    QStringList result;
    for (const osg::NodePtr &node : allNodes(root)) {
        const QByteArray type = node->getCore()->getTypeName();
        result << QString::fromUtf8(kavoScenegraph::getNodeName(node)) + ' ' + type;
    }
    return result;
}

// Replaces the changing part of generated names.
QStringList withoutIds(QStringList texts)
{
    return texts.replaceInStrings(QRegularExpression("\\d+"), "#");
}

osg::NodePtr groupWith(const osg::AttachmentPtr &attachment)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Group>();
    node->addAttachment(attachment);
    return node;
}

template <class Attachment> typename Attachment::Ptr attachment(const osg::NodePtr &node)
{
    return Attachment::Ptr::dcast(node->findAttachment(Attachment::getClassType()));
}

osg::NodePtr chain(int length)
{
    osg::NodePtr top = osg::Node::create();
    for (int i = 1; i < length; ++i) {
        const osg::NodePtr above = osg::Node::create();
        above->addChild(top);
        top = above;
    }
    return top;
}

QByteArray contents(const QString &file)
{
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

} // namespace

void tst_OsgWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    kavoCameraRegistry::set({});
    show(osg::NullFC);
}

void tst_OsgWriter::write(const QString &file, const QByteArray &text) const
{
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly));
    output.write(text);
}

osg::NodePtr tst_OsgWriter::reload(const QString &file)
{
    kavoOsgWriter::save(kavoScenegraph::getRoot(), file);
    const kavoOsgReader::Scene scene = kavoOsgReader::read(file);
    kavoCameraRegistry::set(scene.cameras);
    show(osg::NodePtr(scene.root));
    return kavoScenegraph::getRoot();
}

void tst_OsgWriter::aModelComesBackNodeByNode_data()
{
    QTest::addColumn<QString>("model");
    QTest::newRow("geometries and textures") << "glTF/BoxTextured-glTF/BoxTextured.gltf";
    QTest::newRow("lights") << "Collada/lights.dae";
    QTest::newRow("cameras") << "Collada/cameras.dae";
}

void tst_OsgWriter::aModelComesBackNodeByNode()
{
    QFETCH(QString, model);
    const osg::NodePtr scene = open(model);
    QVERIFY(scene != osg::NullFC);
    const QStringList before = names(scene);
    QCOMPARE(withoutIds(names(reload(path("model.osg")))), withoutIds(before));
}

void tst_OsgWriter::camerasComeBackWithTheirNodes()
{
    open("Collada/cameras.dae");
    const auto count = kavoCameraRegistry::nodeIds().size();
    QVERIFY(count > 0);
    const QByteArray beacon = kavoScenegraph::getNodeName(
        kavoCameraRegistry::at(kavoCameraRegistry::nodeIds().front())->getBeacon());
    const osg::NodePtr scene = reload(path("cameras.osg"));
    QCOMPARE(kavoCameraRegistry::nodeIds().size(), count);
    const osg::CameraPtr camera = kavoCameraRegistry::at(kavoCameraRegistry::nodeIds().front());
    QCOMPARE(QByteArray(kavoScenegraph::getNodeName(camera->getBeacon())), beacon);
    QVERIFY(names(scene).filter(beacon).size() > 0);
}

void tst_OsgWriter::savingLeavesNoTraceInTheScene()
{
    const osg::NodePtr scene = open("Collada/cameras.dae");
    const auto before = scene->getSFAttachments()->getValue().size();
    const osg::CameraPtr camera = kavoCameraRegistry::at(kavoCameraRegistry::nodeIds().front());
    const osg::Int32 references = camera.getRefCount();
    kavoOsgWriter::save(scene, path("a.osg"));
    QCOMPARE(scene->getSFAttachments()->getValue().size(), before);
    QCOMPARE(camera.getRefCount(), references);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("a.osg"));
}

void tst_OsgWriter::valuePairsComeBack()
{
    const std::string value = "two\nlines with \"quotes\" and \xc3\xbc" + std::string(70, 'x');
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    pairs->getMFKeys()->push_back("Maker");
    pairs->getMFValues()->push_back(value);
    show(groupWith(pairs));
    const auto read = attachment<osg::ValuePairBase>(reload(path("a.osg")));
    QCOMPARE(read->getMFKeys()->getValue(0), std::string("Maker"));
    QCOMPARE(read->getMFValues()->getValue(0), value);
}

void tst_OsgWriter::animationsComeBackWithTheirNodes()
{
    const osg::AnimNodeBasePtr animation = osg::AnimNodeBase::create();
    const osg::NodePtr root = groupWith(animation);
    root->addChild(osg::makeCoredNode<osg::Group>());
    for (const osg::NodePtr &node : { root, root->getChild(0) })
        animation->getMFNodes()->push_back(node);
    show(root);
    const osg::NodePtr copy = reload(path("a.osg"));
    const auto read = attachment<osg::AnimNodeBase>(copy);
    QCOMPARE(read->getMFNodes()->size(), 2u);
    QVERIFY(read->getMFNodes()->getValue(0) == copy);
    QVERIFY(read->getMFNodes()->getValue(1) == copy->getChild(0));
}

void tst_OsgWriter::variantsComeBackReferenced()
{
    const osg::TransformVariantListPtr variants = osg::TransformVariantList::create();
    const osg::TransformVariantPtr variant = osg::TransformVariant::create();
    variant->getSFLabel()->setValue("open door");
    variants->addVariant(variant);
    variants->addVariant(variant);
    show(groupWith(variants));
    const auto read = attachment<osg::TransformVariantList>(reload(path("a.osg")));
    QCOMPARE(read->getMFVariants()->size(), 2u);
    const osg::TransformVariantPtr copy = read->getMFVariants()->getValue(1);
    QCOMPARE(copy->getSFLabel()->getValue(), std::string("open door"));
    QCOMPARE(copy.getRefCount(), 2);
}

void tst_OsgWriter::textsComeBackAsTheyWere()
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Group>();
    osg::setName(node, "tab\t  blanks\n\\path\\ \"quote\"");
    show(node);
    const osg::NodePtr copy = reload(path("a.osg"));
    QCOMPARE(osg::getName(copy), "tab\t  blanks\n\\path\\ \"quote\"");
}

// The lists of a new chunk of this type are not empty.
void tst_OsgWriter::listsComeBackAsTheyWere()
{
    show(groupWith(osg::RegisterCombinersChunk::create()));
    const auto read = attachment<osg::RegisterCombinersChunk>(reload(path("a.osg")));
    QCOMPARE(read->getMFVariableArgb()->size(), 27u);
}

void tst_OsgWriter::otherSuffixesAreRefused()
{
    show(osg::makeCoredNode<osg::Group>());
    QVERIFY_EXCEPTION_THROWN(
        kavoOsgWriter::save(kavoScenegraph::getRoot(), path("a.gltf")), kavoTaskError);
    QVERIFY(!QFile::exists(path("a.gltf")));
}

void tst_OsgWriter::withoutASceneNothingIsSaved()
{
    QVERIFY_EXCEPTION_THROWN(kavoOsgWriter::save(osg::NullFC, path("a.osg")), kavoTaskError);
    QVERIFY(!QFile::exists(path("a.osg")));
}

void tst_OsgWriter::aFailedSaveLeavesTheFileAsItWas()
{
    write(path("a.osg"), "Node { }");
    show(chain(2000));
    QVERIFY_EXCEPTION_THROWN(
        kavoOsgWriter::save(kavoScenegraph::getRoot(), path("a.osg")), kavoTaskError);
    QCOMPARE(contents(path("a.osg")), QByteArray("Node { }"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("a.osg"));
}

KAVO_TEST_MAIN(tst_OsgWriter)
#include "tst_osgwriter.moc"
