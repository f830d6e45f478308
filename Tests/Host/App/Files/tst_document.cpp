#include "kavoTestLoad.h"

#include "Basics/kavoTaskError.h"
#include "Files/kavoDocument.h"
#include "Scene/kavoOpenScene.h"
#include <kavoTestHost.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace kavoTestLoad;

class tst_Document : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anOpenedSceneIsNotModified();
    void anEditModifiesIt_data();
    void anEditModifiesIt();
    void itIsNotModifiedBy_data();
    void itIsNotModifiedBy();
    void withoutASceneNothingIsModified();
    void modifyingIsToldOnce();
    void savingMakesItUnmodified();
    void discardedEditsAreBackWhenTheSceneStays();
    void discardedEditsThatAreSavedAreNotBack();
    void editsAfterDiscardingModifyIt();
    void aFailedSaveKeepsItModified();
    void theTitleNamesAllFiles();
    void onlySceneFilesAreSavedInPlace_data();
    void onlySceneFilesAreSavedInPlace();
    void theSuggestedFileIsBesideTheOpenedOne();
    void aFileThatWasReadInPartIsLeftAlone();
    void itIsLeftAloneAfterSavingElsewhere();
    void anotherNameOfItIsNoWayAround();

private:
    void edit();

    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoDocument> m_document;
    QTemporaryDir m_folder;
    osg::NodePtr m_root;
    osg::ChunkMaterialPtr m_material;
    osg::TextureChunkPtr m_chunk;
};

using Edit = void (*)(const osg::NodePtr &root, const osg::ChunkMaterialPtr &material);
Q_DECLARE_METATYPE(Edit)

void tst_Document::init()
{
    osg::MaterialGroupPtr core;
    m_root = osg::makeCoredNode<osg::MaterialGroup>(&core);
    m_material = osg::ChunkMaterial::create();
    m_chunk = osg::TextureChunk::create();
    m_material->addChunk(m_chunk);
    core->setMaterial(m_material);
    m_root->addChild(osg::makeCoredNode<osg::ComponentTransform>());
    m_root->getChild(0)->addAttachment(osg::BlendChunk::create());
    m_scene = std::make_unique<kavoOpenScene>();
    m_document = std::make_unique<kavoDocument>(*m_scene);
    show(m_root);
    m_document->setFiles({ "/models/ship.osg" });
}

void tst_Document::cleanup()
{
    m_document.reset();
    m_scene.reset();
}

void tst_Document::edit()
{
    osg::endEditCP(m_root, osg::Node::TravMaskFieldMask);
    m_scene->drainChanges();
}

void tst_Document::anOpenedSceneIsNotModified()
{
    m_scene->drainChanges();
    QVERIFY(!m_document->isModified());
}

void tst_Document::anEditModifiesIt_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::newRow("of a node") << Edit([](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
        root->setTravMask(0);
        osg::endEditCP(root, osg::Node::TravMaskFieldMask);
    });
    QTest::newRow("of a core") << Edit([](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
        osg::endEditCP(root->getChild(0)->getCore(), osg::ComponentTransform::ScaleFieldMask);
    });
    QTest::newRow("of a name") << Edit([](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
        osg::setName(root->getChild(0), "Hull");
    });
    QTest::newRow("of a material")
        << Edit([](const osg::NodePtr &, const osg::ChunkMaterialPtr &material) {
               osg::endEditCP(material, osg::Material::SortKeyFieldMask);
           });
    QTest::newRow("of a chunk") << Edit(
        [](const osg::NodePtr &, const osg::ChunkMaterialPtr &material) {
            osg::endEditCP(material->getChunks(0), osg::TextureChunk::MinFilterFieldMask);
        });
    QTest::newRow("of a chunk among attachments") << Edit(
        [](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
            const auto chunk = root->getChild(0)->findAttachment(osg::BlendChunk::getClassType());
            osg::endEditCP(chunk, osg::BlendChunk::SrcFactorFieldMask);
        });
    QTest::newRow("of a volume that stays")
        << Edit([](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
               root->getVolume(false).setStatic();
               osg::endEditCP(root, osg::Node::VolumeFieldMask);
           });
    QTest::newRow("a new child") << Edit(
        [](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
            root->addChild(osg::makeCoredNode<osg::Group>());
            osg::endEditCP(root, osg::Node::ChildrenFieldMask);
        });
}

void tst_Document::anEditModifiesIt()
{
    QFETCH(Edit, edit);
    edit(m_root, m_material);
    m_scene->drainChanges();
    QVERIFY(m_document->isModified());
}

void tst_Document::itIsNotModifiedBy_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::newRow("volumes") << Edit([](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
        root->invalidateVolume();
        root->updateVolume();
    });
    QTest::newRow("states of materials")
        << Edit([](const osg::NodePtr &, const osg::ChunkMaterialPtr &material) {
               material->rebuildState();
           });
    QTest::newRow("nodes elsewhere")
        << Edit([](const osg::NodePtr &, const osg::ChunkMaterialPtr &) {
               const osg::NodePtr other = osg::makeCoredNode<osg::Group>();
               osg::setName(other, "Preview");
               osg::endEditCP(other);
           });
    QTest::newRow("materials of another scene")
        << Edit([](const osg::NodePtr &, const osg::ChunkMaterialPtr &) {
               const osg::SimpleMaterialPtr other = osg::SimpleMaterial::create();
               osg::setName(other, "Preview");
               osg::endEditCP(other);
           });
    QTest::newRow("a core that another node shares")
        << Edit([](const osg::NodePtr &root, const osg::ChunkMaterialPtr &) {
               const osg::NodePtr other = osg::makeNodeFor(root->getCore());
               osg::subRefCP(other);
           });
}

void tst_Document::itIsNotModifiedBy()
{
    QFETCH(Edit, edit);
    edit(m_root, m_material);
    m_scene->drainChanges();
    QVERIFY(!m_document->isModified());
}

void tst_Document::withoutASceneNothingIsModified()
{
    show(osg::NullFC);
    osg::setName(osg::makeCoredNode<osg::Group>(), "Loading");
    m_scene->drainChanges();
    QVERIFY(!m_document->isModified());
}

void tst_Document::modifyingIsToldOnce()
{
    QSignalSpy changed(m_document.get(), &kavoDocument::changed);
    for (int i = 0; i < 3; ++i)
        edit();
    QCOMPARE(changed.size(), 1);
}

void tst_Document::savingMakesItUnmodified()
{
    edit();
    m_document->save(m_folder.filePath("ship.osg"));
    m_scene->drainChanges();
    QVERIFY(!m_document->isModified());
    QCOMPARE(m_document->file(), m_folder.filePath("ship.osg"));
    QCOMPARE(m_document->title(), QStringLiteral("ship.osg"));
}

void tst_Document::discardedEditsAreBackWhenTheSceneStays()
{
    m_document->discardEdits();
    m_document->keepEdits();
    QVERIFY(!m_document->isModified());
    edit();
    m_document->discardEdits();
    QVERIFY(!m_document->isModified());
    m_document->keepEdits();
    QVERIFY(m_document->isModified());
}

void tst_Document::discardedEditsThatAreSavedAreNotBack()
{
    edit();
    m_document->discardEdits();
    m_document->save(m_folder.filePath("ship.osg"));
    m_document->keepEdits();
    QVERIFY(!m_document->isModified());
}

void tst_Document::editsAfterDiscardingModifyIt()
{
    edit();
    m_document->discardEdits();
    edit();
    QVERIFY(m_document->isModified());
    m_document->keepEdits();
    QVERIFY(m_document->isModified());
}

void tst_Document::aFailedSaveKeepsItModified()
{
    edit();
    QVERIFY_EXCEPTION_THROWN(
        m_document->save(m_folder.filePath("no folder/ship.osg")), kavoTaskError);
    QVERIFY(m_document->isModified());
    QCOMPARE(m_document->file(), QStringLiteral("/models/ship.osg"));
}

void tst_Document::theTitleNamesAllFiles()
{
    m_document->setFiles({ "/models/ship.osg", "/others/tank.fbx" });
    QCOMPARE(m_document->title(), QStringLiteral("ship.osg, tank.fbx"));
}

void tst_Document::onlySceneFilesAreSavedInPlace_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("file");
    QTest::newRow("scene file") << QStringList { "/a.osg" } << "/a.osg";
    QTest::newRow("capitals") << QStringList { "/A.OSG" } << "/A.OSG";
    QTest::newRow("model") << QStringList { "/a.gltf" } << "";
    QTest::newRow("several") << QStringList { "/a.osg", "/b.osg" } << "";
    QTest::newRow("none") << QStringList {} << "";
}

void tst_Document::onlySceneFilesAreSavedInPlace()
{
    QFETCH(QStringList, files);
    m_document->setFiles(files);
    QTEST(m_document->file(), "file");
}

void tst_Document::theSuggestedFileIsBesideTheOpenedOne()
{
    m_document->setFiles({ "/models/truck.v2.gltf" });
    QCOMPARE(m_document->suggestedFile(), QStringLiteral("/models/truck.v2.osg"));
}

void tst_Document::aFileThatWasReadInPartIsLeftAlone()
{
    const QString file = m_folder.filePath("part.osg");
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    m_document->setFiles({ file }, { file });
    QCOMPARE(m_document->file(), QString());
    QCOMPARE(m_document->suggestedFile(), m_folder.filePath("part-copy.osg"));
    QVERIFY_EXCEPTION_THROWN(m_document->save(file), kavoTaskError);
    QCOMPARE(QFileInfo(file).size(), 0);
    m_document->save(m_folder.filePath("copy.osg"));
    QCOMPARE(m_document->file(), m_folder.filePath("copy.osg"));
}

void tst_Document::itIsLeftAloneAfterSavingElsewhere()
{
    const QString file = m_folder.filePath("damaged.osg");
    const QString copy = m_folder.filePath("whole.osg");
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    m_document->setFiles({ file }, { file });
    m_document->save(copy);
    QVERIFY_EXCEPTION_THROWN(m_document->save(file), kavoTaskError);
    QCOMPARE(QFileInfo(file).size(), 0);
    QCOMPARE(m_document->suggestedFile(), copy);
    m_document->save(copy);
    m_document->setFiles({ copy });
    m_document->save(file);
    QCOMPARE(m_document->file(), file);
}

void tst_Document::anotherNameOfItIsNoWayAround()
{
    const QString file = m_folder.filePath("linked.osg");
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(file, m_folder.filePath("link.osg")));
    m_document->setFiles({ file }, { file });
    QVERIFY_EXCEPTION_THROWN(m_document->save(m_folder.filePath("link.osg")), kavoTaskError);
}

KAVO_TEST_MAIN(tst_Document)
#include "tst_document.moc"
