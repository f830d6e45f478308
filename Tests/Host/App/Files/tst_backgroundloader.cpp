#include "kavoTestLoad.h"

#include "Files/kavoBackgroundLoader.h"
#include "Scene/kavoContainers.h"
#include <kavoNodeUtils.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <assimp/Exporter.hpp>
#include <assimp/Importer.hpp>
#include <assimp/scene.h>

#include <QDirIterator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace kavoTestLoad;

namespace {

const QString truck = QStringLiteral("glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");
const QString house = QStringLiteral("IFC/AC14-FZK-Haus.ifc");
const QString lights = QStringLiteral("Collada/lights.dae");

QString brokenFile(const QTemporaryDir &folder)
{
    QFile file(folder.filePath("broken.dae"));
    file.open(QIODevice::WriteOnly);
    file.write("<COLLADA version=\"1.4.1\"><library_geometries>");
    return file.fileName();
}

/// A file with nested nodes.
QString deepFile(const QTemporaryDir &folder, int levels)
{
    QByteArray nodes;
    for (int level = 1; level < levels; ++level)
        nodes += "{\"name\":\"Link\",\"children\":[" + QByteArray::number(level) + "]},";
    QFile file(folder.filePath("deep.gltf"));
    file.open(QIODevice::WriteOnly);
    file.write(
        "{\"asset\":{\"version\":\"2.0\"},\"scene\":0,\"scenes\":[{\"nodes\":[0]}],\"nodes\":["
        + nodes + "{\"name\":\"Last\"}]}");
    return file.fileName();
}

using Damage = void (*)(aiScene &);

/// A binary file of the truck that is damaged.
QString damagedFile(const QTemporaryDir &folder, Damage damage)
{
    const QString file = folder.filePath("damaged.assbin");
    Assimp::Importer importer;
    importer.ReadFile(model(truck).toStdString(), 0);
    const std::unique_ptr<aiScene> scene(importer.GetOrphanedScene());
    damage(*scene);
    Assimp::Exporter().Export(scene.get(), "assbin", file.toStdString());
    return file;
}

} // namespace

Q_DECLARE_METATYPE(Damage)

class tst_BackgroundLoader : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { show(osg::NullFC); }

    void aDeeplyNestedFileIsLoaded()
    {
        const QTemporaryDir folder;
        kavoBackgroundLoader loader;
        connect(&loader, &kavoBackgroundLoader::loaded, &kavoTestLoad::show);
        loader.load({ deepFile(folder, 5000) });
        QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), 20000);
        QVERIFY(find("Last") != osg::NullFC);
    }

    // The worker, which has the largest stack, reads, checks and deletes it.
    void aFileNestedTooDeeplyIsRefused()
    {
        const QTemporaryDir folder;
        kavoBackgroundLoader loader;
        QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
        loader.load({ deepFile(folder, 20000) });
        QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 20000);
        QCOMPARE(failed[0][1].toString(), QString("the nodes of the file are nested too deeply"));
    }

    void severalFilesBecomeOneScene()
    {
        kavoBackgroundLoader loader;
        connect(&loader, &kavoBackgroundLoader::loaded, &kavoTestLoad::show);
        loader.load({ model(truck), model(lights) });
        QTRY_VERIFY(!loader.isLoading());
        QCOMPARE(kavoNodeUtils::getName(kavoScenegraph::getRoot()), "Scene");
        QCOMPARE(kavoScenegraph::getRoot()->getNChildren(), 3u);
        QVERIFY(find("Lamp") != osg::NullFC);
        QVERIFY(find("Geometry-mesh002Node") != osg::NullFC);
    }

    void aSceneThatNobodyTakesIsGone()
    {
        kavoBackgroundLoader loader;
        osg::UInt32 root = 0;
        connect(&loader, &kavoBackgroundLoader::loaded,
            [&](const osg::NodePtr &node) { root = kavoContainers::id(node); });
        loader.load({ model(truck) });
        QTRY_VERIFY(root != 0);
        QTRY_VERIFY(kavoContainers::find(root) == osg::NullFC);
    }

    void aBrokenFileIsNamedWithTheReasonAndTheSceneStays()
    {
        const QTemporaryDir folder;
        const osg::NodePtr before = open(truck);
        kavoBackgroundLoader loader;
        QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        loader.load({ brokenFile(folder) });
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed.first().at(0).toString(), brokenFile(folder));
        QVERIFY(!failed.first().at(1).toString().isEmpty());
        QCOMPARE(loaded.count(), 0);
        QVERIFY(!loader.isLoading());
        QVERIFY(kavoScenegraph::getRoot() == before);
    }

    void oneBrokenFileOfSeveralEndsTheLoad()
    {
        const QTemporaryDir folder;
        kavoBackgroundLoader loader;
        QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        loader.load({ model(truck), brokenFile(folder) });
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(loaded.count(), 0);
    }

    void aDamagedFileIsRefused_data()
    {
        QTest::addColumn<Damage>("damage");
        QTest::addColumn<QString>("reason");
        QTest::newRow("none") << Damage([](aiScene &) {}) << QString();
        QTest::newRow("material") << Damage([](aiScene &scene) {
            scene.mMeshes[0]->mMaterialIndex = 777;
        }) << "a mesh has a material that is not there";
        QTest::newRow("vertex") << Damage([](aiScene &scene) {
            scene.mMeshes[0]->mFaces[0].mIndices[0] = 99999;
        }) << "a face has a vertex too many";
        QTest::newRow("mesh") << Damage([](aiScene &scene) {
            scene.mRootNode->mNumMeshes = 1;
            scene.mRootNode->mMeshes = new unsigned int[1] { 555 };
        }) << "a node has a mesh that is not there";
    }

    void aDamagedFileIsRefused()
    {
        QFETCH(Damage, damage);
        QFETCH(QString, reason);
        const QTemporaryDir folder;
        kavoBackgroundLoader loader;
        QString refusal;
        connect(&loader, &kavoBackgroundLoader::failed,
            [&](const QString &, const QString &why) { refusal = why; });
        loader.load({ damagedFile(folder, damage) });
        QTRY_VERIFY(!loader.isLoading());
        QCOMPARE(refusal, reason.isEmpty() ? reason : "the file is damaged: " + reason);
    }

    void aMissingFileFails()
    {
        kavoBackgroundLoader loader;
        QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
        loader.load({ QStringLiteral("no such file.obj") });
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed.first().first().toString(), QString("no such file.obj"));
    }

    void anEmptyListLoadsNothing()
    {
        kavoBackgroundLoader loader;
        loader.load({});
        QVERIFY(!loader.isLoading());
    }

    void progressRisesToAHundred()
    {
        kavoBackgroundLoader loader;
        QSignalSpy progress(&loader, &kavoBackgroundLoader::progress);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        loader.load({ model(house) });
        QTRY_COMPARE(loaded.count(), 1);
        int last = 0;
        for (const QList<QVariant> &arguments : qAsConst(progress)) {
            QVERIFY(arguments.at(0).toInt() >= last);
            last = arguments.at(0).toInt();
        }
        QCOMPARE(last, 100);
    }

    void theEventLoopKeepsRunningWhileABigSceneIsBuilt()
    {
        kavoBackgroundLoader loader;
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        int rounds = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, [&] { ++rounds; });
        ticker.start(0);
        loader.load({ model(house) });
        QTRY_COMPARE(loaded.count(), 1);
        QVERIFY2(rounds > 10, qPrintable(QString::number(rounds)));
    }

    void everyModelLoadsOrSaysWhyNot_data()
    {
        static const QStringList noScenes { "txt", "png", "jpg", "jpeg", "tga", "bmp", "dds", "gif",
            "bin", "mtl", "glsl", "html", "pdf", "license", "readme", "material", "max" };
        QTest::addColumn<QString>("file");
        const QDir folder(model(QString()));
        QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = folder.relativeFilePath(files.next());
            if (file == "invalid/OutOfMemory.off")
                continue; // loading it would use up the memory
            if (!noScenes.contains(QFileInfo(file).suffix().toLower()))
                QTest::newRow(qPrintable(file)) << file;
        }
    }

    void everyModelLoadsOrSaysWhyNot()
    {
        QFETCH(QString, file);
        kavoBackgroundLoader loader;
        QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        connect(&loader, &kavoBackgroundLoader::loaded, &kavoTestLoad::show);
        loader.load({ model(file) });
        QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), 20000);
        QCOMPARE(failed.count() + loaded.count(), 1);
        if (loaded.count() == 0)
            QVERIFY(!failed.first().at(1).toString().isEmpty());
        else
            for (const osg::NodePtr &node : allNodes(kavoScenegraph::getRoot()))
                QVERIFY(node->getCore() != osg::NullFC);
    }
};

KAVO_TEST_MAIN(tst_BackgroundLoader)
#include "tst_backgroundloader.moc"
