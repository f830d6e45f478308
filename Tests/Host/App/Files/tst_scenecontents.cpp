#include "kavoTestLoad.h"

#include "Files/kavoBackgroundLoader.h"
#include "Scene/kavoCameraRegistry.h"
#include "Scene/kavoContainers.h"
#include <kavoLog.h>
#include <kavoNodeUtils.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OSGValuePairBase.h>
#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGSpotLight.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTransform.h>

#include <QTemporaryDir>
#include <QtTest>

#include <assimp/Importer.hpp>
#include <assimp/scene.h>

using namespace kavoTestLoad;

namespace {

const QString truck = QStringLiteral("glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");
const QString house = QStringLiteral("IFC/AC14-FZK-Haus.ifc");
const QString lights = QStringLiteral("Collada/lights.dae");
const QString spider = QStringLiteral("FBX/spider.fbx");

template <class Handle> Handle coreOf(const QString &node)
{
    const osg::NodePtr found = find(node);
    return found == osg::NullFC ? Handle() : Handle::dcast(found->getCore());
}

osg::ChunkMaterialPtr material(const QString &name)
{
    const auto group = coreOf<osg::MaterialGroupPtr>(name);
    return group == osg::NullFC ? osg::ChunkMaterialPtr()
                                : osg::ChunkMaterialPtr::dcast(group->getMaterial());
}

template <class Chunk> typename Chunk::Ptr chunk(const osg::ChunkMaterialPtr &material)
{
    return Chunk::Ptr::dcast(material->find(Chunk::getClassType()));
}

void countNames(const aiNode &node, QHash<QString, int> &names)
{
    ++names[node.mName.C_Str()];
    for (unsigned int i = 0; i < node.mNumChildren; ++i)
        countNames(*node.mChildren[i], names);
}

} // namespace

class tst_SceneContents : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { show(osg::NullFC); }

    void theRootHasTheFileAndTheMaterialLibrary()
    {
        const osg::NodePtr root = open(truck);
        QCOMPARE(root->getNChildren(), 2u);
        QCOMPARE(kavoNodeUtils::getName(root), "CesiumMilkTruck.gltf");
        QCOMPARE(kavoNodeUtils::getName(root->getChild(0)), "ROOT");
        QCOMPARE(kavoNodeUtils::getName(root->getChild(1)), "Materials");
    }

    void aNodeThatMovesNothingCarriesItsFirstMeshItself()
    {
        open(truck);
        const auto geometry = coreOf<osg::GeometryPtr>("Geometry-mesh002Node");
        QVERIFY(geometry != osg::NullFC);
        QVERIFY(osg::ChunkMaterialPtr::dcast(geometry->getMaterial()) != osg::NullFC);
        QCOMPARE(find("Geometry-mesh002Node")->getNChildren(), 4u);
        QVERIFY(coreOf<osg::GeometryPtr>("Geometry-mesh002-1") != osg::NullFC);
    }

    void aNodeThatMovesIsATransformWithItsMeshesBelow()
    {
        open(truck);
        QVERIFY(coreOf<osg::TransformPtr>("Geometry-mesh001Node") != osg::NullFC);
        const osg::NodePtr mesh = find("Geometry-mesh001Node")->getChild(0);
        QCOMPARE(kavoNodeUtils::getName(mesh), "Geometry-mesh001");
        QVERIFY(osg::GeometryPtr::dcast(mesh->getCore()) != osg::NullFC);
    }

    void everyNodeKnowsItsVolume()
    {
        open(truck);
        osg::Pnt3f min, max;
        find("Geometry-mesh002Node")->getVolume().getBounds(min, max);
        QVERIFY(max[0] > min[0] && max[1] > min[1] && max[2] > min[2]);
    }

    void nodesOfTheSameMeshShareItsGeometry()
    {
        open(truck);
        const osg::NodePtr one = find("Geometry-mesh001Node"), other = find("meshInst962Node");
        QVERIFY(one->getChild(0)->getCore() == other->getChild(0)->getCore());
    }

    void aGeometryHasOneIndexForAllOfItsProperties()
    {
        open(truck);
        const auto geometry = coreOf<osg::GeometryPtr>("Geometry-mesh002Node");
        QCOMPARE(geometry->getMFIndexMapping()->getSize(), 0u);
        QCOMPARE(geometry->getTypes()->getValue(0), osg::UInt8(4));
        QCOMPARE(geometry->getLengths()->getValue(0), geometry->getIndices()->getSize());
        QCOMPARE(geometry->getNormals()->getSize(), geometry->getPositions()->getSize());
        QCOMPARE(geometry->getTexCoords()->getSize(), geometry->getPositions()->getSize());
    }

    void materialsAreMadeOfExplicitChunks()
    {
        open(truck);
        const osg::ChunkMaterialPtr wheels = material("Effect-wheels");
        QCOMPARE(wheels->getMFChunks()->getSize(), 3u);
        QVERIFY(chunk<osg::MaterialChunk>(wheels) != osg::NullFC);
        QVERIFY(chunk<osg::TextureChunk>(wheels)->getImage()->getWidth() > 0);
        QCOMPARE(chunk<osg::PolygonChunk>(wheels)->getCullFace(), 1029u);
        QCOMPARE(kavoContainers::name(wheels), QString("Effect-wheels"));
    }

    void materialsThatNameTheSameFileShareItsImage()
    {
        open(truck);
        QVERIFY(chunk<osg::TextureChunk>(material("Effect-wheels"))->getImage()
            == chunk<osg::TextureChunk>(material("Effect-truck"))->getImage());
    }

    void everyNodeOfAHouseAndEveryMaterialIsThere()
    {
        Assimp::Importer importer;
        const aiScene *file = importer.ReadFile(model(house).toStdString(), 0);
        QHash<QString, int> missing;
        countNames(*file->mRootNode, missing);
        QCOMPARE(std::accumulate(missing.begin(), missing.end(), 0), 216);
        const osg::NodePtr root = open(house);
        for (const osg::NodePtr &node : allNodes(root->getChild(0)))
            --missing[kavoNodeUtils::getName(node)];
        QVERIFY(std::none_of(missing.begin(), missing.end(), [](int count) { return count > 0; }));
        QCOMPARE(find("Materials")->getNChildren(), 177u);
    }

    void materialsOfAnOpacityBelowOneBlend()
    {
        open(house);
        int blending = 0;
        for (osg::UInt32 i = 0; i < find("Materials")->getNChildren(); ++i) {
            const auto core
                = osg::MaterialGroupPtr::dcast(find("Materials")->getChild(i)->getCore());
            const auto chunks = osg::ChunkMaterialPtr::dcast(core->getMaterial());
            const float alpha = chunk<osg::MaterialChunk>(chunks)->getDiffuse().alpha();
            QCOMPARE(chunk<osg::BlendChunk>(chunks) != osg::NullFC, alpha < 1);
            blending += alpha < 1;
        }
        QVERIFY(blending > 0);
    }

    void aLightsBeaconIsANodeThatDoesNotHoldTheLight()
    {
        open(lights);
        const auto lamp = coreOf<osg::LightPtr>("Lamp");
        QVERIFY(lamp->getBeacon() != find("Lamp"));
        QVERIFY(osg::LightPtr::dcast(lamp->getBeacon()->getCore()) == osg::NullFC);
        QVERIFY(osg::TransformPtr::dcast(lamp->getBeacon()->getCore()) != osg::NullFC);
        QCOMPARE(kavoNodeUtils::getName(lamp->getBeacon()), "Lamp-beacon");
    }

    void lightsKeepTheirKind()
    {
        open(lights);
        QVERIFY(coreOf<osg::PointLightPtr>("Lamp") != osg::NullFC);
        QVERIFY(coreOf<osg::DirectionalLightPtr>("Sun") != osg::NullFC);
        QVERIFY(coreOf<osg::SpotLightPtr>("Spot") != osg::NullFC);
        QCOMPARE(coreOf<osg::DirectionalLightPtr>("Sun")->getDirection(), osg::Vec3f(0, 0, 1));
    }

    void lightsThatNoNodeCarriesGetANode()
    {
        const osg::NodePtr root = open("OpenGEX/light_issue1262.ogex");
        const auto nodes = allNodes(root);
        QVERIFY(std::any_of(nodes.begin(), nodes.end(), [](const osg::NodePtr &node) {
            return osg::LightPtr::dcast(node->getCore()) != osg::NullFC;
        }));
    }

    void aCameraIsPlacedByTheNodeOfItsName()
    {
        open("Collada/cameras.dae");
        QCOMPARE(kavoCameraRegistry::nodeIds().size(), std::size_t(3));
        const osg::UInt32 node = kavoContainers::id(find("Camera_002"));
        const auto camera = kavoCameraRegistry::at(node);
        QVERIFY(camera != osg::NullFC);
        QVERIFY(camera->getBeacon() == find("Camera_002"));
        QCOMPARE(camera->getNear(), 0.1f);
    }

    void aCameraThatLooksElsewhereGetsABeaconOfItsOwn()
    {
        open(spider);
        QCOMPARE(kavoCameraRegistry::nodeIds().size(), std::size_t(1));
        const osg::NodePtr beacon = kavoContainers::node(kavoCameraRegistry::activeNodeId());
        QCOMPARE(kavoNodeUtils::getName(beacon), "Camera-beacon");
        QVERIFY(beacon->getParent() == find("Camera"));
    }

    void metadataArriveAsValuePairs()
    {
        const osg::NodePtr root = open(spider);
        osg::UInt32 pairs = 0, nodes = 0;
        for (const osg::NodePtr &node : allNodes(root)) {
            const auto found = osg::ValuePairBasePtr::dcast(
                node->findAttachment(osg::ValuePairBase::getClassType()));
            if (found == osg::NullFC)
                continue;
            ++nodes;
            pairs += found->getKeys().size();
            QCOMPARE(found->getValues().size(), found->getKeys().size());
        }
        QCOMPARE(pairs, 90u);
        QCOMPARE(nodes, 21u); // all of the file's 22 but its root
    }

    void aMissingTextureIsLoggedAndLeavesNoChunk()
    {
        open(spider);
        const auto lines = kavoLog::history();
        QVERIFY(std::any_of(lines.begin(), lines.end(), [](const kavoLog::Entry &line) {
            return line.level == kavoLog::Level::Warning
                && line.text.find("wal67ar_small.jpg") != std::string::npos;
        }));
        QVERIFY(chunk<osg::TextureChunk>(material("Skin")) == osg::NullFC);
    }

    void texturesAreFoundBesideTheFileByTheirBareName()
    {
        QTemporaryDir folder;
        QFile::copy(model(spider), folder.filePath("spider.fbx"));
        QFile::copy(model("OBJ/wal67ar_small.jpg"), folder.filePath("wal67ar_small.jpg"));
        kavoBackgroundLoader loader;
        connect(&loader, &kavoBackgroundLoader::loaded, &kavoTestLoad::show);
        loader.load({ folder.filePath("spider.fbx") });
        QTRY_VERIFY(!loader.isLoading());
        QVERIFY(chunk<osg::TextureChunk>(material("Skin")) != osg::NullFC);
    }

    void embeddedTexturesAreRead()
    {
        open("glTF2/BoxTextured-glTF-Embedded/BoxTextured.gltf");
        const osg::NodePtr library = find("Materials");
        bool textured = false;
        for (osg::UInt32 i = 0; i < library->getNChildren(); ++i) {
            const auto core = osg::MaterialGroupPtr::dcast(library->getChild(i)->getCore());
            textured |= chunk<osg::TextureChunk>(osg::ChunkMaterialPtr::dcast(core->getMaterial()))
                != osg::NullFC;
        }
        QVERIFY(textured);
    }
};

KAVO_TEST_MAIN(tst_SceneContents)
#include "tst_scenecontents.moc"
