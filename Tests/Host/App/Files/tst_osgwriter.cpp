#include "kavoTestLoad.h"

#include "Basics/kavoTaskError.h"
#include "Files/kavoBackgroundLoader.h"
#include "Files/kavoOsgReader.h"
#include "Files/kavoOsgWriter.h"
#include "Scene/kavoSceneCameras.h"
#include <kavoLog.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OSGAnimNodeBase.h>
#include <OSGTransformVariantList.h>
#include <OSGValuePairBase.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGRegisterCombinersChunk.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QRegularExpression>
#include <QSignalSpy>
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

    void aSceneFileIsTheSceneItself();
    void severalFilesAreBelowOneRoot();
    void aSceneFileThatCannotBeReadIsNamed_data();
    void aSceneFileThatCannotBeReadIsNamed();
    void whatCannotBeReadIsInTheLog_data();
    void whatCannotBeReadIsInTheLog();
    void aFileIsWholeIfAllWasUnderstood_data();
    void aFileIsWholeIfAllWasUnderstood();

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

}

void tst_OsgWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    kavoSceneCameras::set({});
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
    kavoSceneCameras::set(scene.cameras);
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
    const auto count = kavoSceneCameras::nodeIds().size();
    QVERIFY(count > 0);
    const QByteArray beacon = kavoScenegraph::getNodeName(
        kavoSceneCameras::at(kavoSceneCameras::nodeIds().front())->getBeacon());
    const osg::NodePtr scene = reload(path("cameras.osg"));
    QCOMPARE(kavoSceneCameras::nodeIds().size(), count);
    const osg::CameraPtr camera = kavoSceneCameras::at(kavoSceneCameras::nodeIds().front());
    QCOMPARE(QByteArray(kavoScenegraph::getNodeName(camera->getBeacon())), beacon);
    QVERIFY(names(scene).filter(beacon).size() > 0);
}

void tst_OsgWriter::savingLeavesNoTraceInTheScene()
{
    const osg::NodePtr scene = open("Collada/cameras.dae");
    const auto before = scene->getSFAttachments()->getValue().size();
    const osg::CameraPtr camera = kavoSceneCameras::at(kavoSceneCameras::nodeIds().front());
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

void tst_OsgWriter::aSceneFileIsTheSceneItself()
{
    write(path("a.osg"), "DEF Ship Node { children Node { } }");
    kavoBackgroundLoader loader;
    QStringList loaded;
    connect(&loader, &kavoBackgroundLoader::loaded, this,
        [&](const osg::NodePtr &root) { loaded = names(root); });
    loader.load({ path("a.osg") });
    QTRY_VERIFY(!loader.isLoading());
    QCOMPARE(loaded.size(), 2);
    QCOMPARE(loaded.first(), QStringLiteral("Ship Group"));
}

void tst_OsgWriter::severalFilesAreBelowOneRoot()
{
    write(path("a.osg"), "DEF Ship Node { }");
    write(path("b.osg"), "DEF Boat Node { } DEF Raft Node { }");
    kavoBackgroundLoader loader;
    QStringList loaded;
    connect(&loader, &kavoBackgroundLoader::loaded, this,
        [&](const osg::NodePtr &root) { loaded = names(root); });
    loader.load({ path("a.osg"), model("Collada/lights.dae"), path("b.osg") });
    QTRY_VERIFY(!loader.isLoading());
    for (const char *name : { "Ship Group", "Boat Group", "Raft Group", "Materials Group" })
        QVERIFY2(loaded.contains(name), name);
}

void tst_OsgWriter::aSceneFileThatCannotBeReadIsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing.osg";
    QTest::newRow("folder") << "folder.osg";
    QTest::newRow("no scene") << "prose.osg";
    QTest::newRow("a field that throws") << "throwing.osg";
}

void tst_OsgWriter::aSceneFileThatCannotBeReadIsNamed()
{
    QFETCH(QString, name);
    QDir(m_folder->path()).mkdir("folder.osg");
    write(path("prose.osg"), "It was a dark and stormy night");
    write(path("throwing.osg"), "Node { attachments [ ThrowingMark { text \"a\" } ] }");
    kavoBackgroundLoader loader;
    QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
    loader.load({ m_folder->filePath(name) });
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed[0][0].toString(), m_folder->filePath(name));
    QVERIFY(!failed[0][1].toString().isEmpty());
    QVERIFY(!loader.isLoading());
}

void tst_OsgWriter::whatCannotBeReadIsInTheLog_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("something the library warns of") << QByteArray(
        "Node { sparkles 5 }") << "warning: -----> parse error in Line 1, read 'sparkles'";
    QTest::newRow("something it remarks")
        << QByteArray("#VRML V1.0\nNode { }") << "info: File begins with '#VRML V1.0'";
}

void tst_OsgWriter::whatCannotBeReadIsInTheLog()
{
    QFETCH(QByteArray, text);
    write(path("a.osg"), text);
    QString logged;
    const int observer = kavoLog::addObserver([&](const kavoLog::Entry &entry) {
        logged += QString("%1: %2\n")
                      .arg(kavoLog::levelName(entry.level), QString::fromStdString(entry.text));
    });
    kavoOsgReader::read(path("a.osg"));
    kavoLog::removeObserver(observer);
    QFETCH(QString, line);
    QVERIFY2(logged.startsWith(line), qPrintable(logged));
}

void tst_OsgWriter::aFileIsWholeIfAllWasUnderstood_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("all") << QByteArray("#OSG V1.0 \nNode { }") << true;
    QTest::newRow("a header that lost its blank") << QByteArray("#OSG V1.0\nNode { }") << true;
    QTest::newRow("an unknown attachment")
        << QByteArray("Node { attachments [ VendorNotes { text \"years of work\" } ] }") << false;
    QTest::newRow("cut off") << QByteArray("Node { children [ Node { }") << false;
    QTest::newRow("an unknown name")
        << QByteArray("Node { core MaterialGroup { material USE Chrome } }") << false;
}

void tst_OsgWriter::aFileIsWholeIfAllWasUnderstood()
{
    QFETCH(QByteArray, text);
    write(path("a.osg"), text);
    osg::osgLog().setLogLevel(osg::LOG_FATAL, true);
    const bool isWhole = kavoOsgReader::read(path("a.osg")).isWhole;
    QCOMPARE(osg::osgLog().getLogLevel(), osg::LOG_FATAL);
    osg::osgLog().setLogLevel(osg::LOG_WARNING, true);
    QTEST(isWhole, "isWhole");
}

KAVO_TEST_MAIN(tst_OsgWriter)
#include "tst_osgwriter.moc"
