#include "Import/kavoGraphBuilder.h"

#include "Import/kavoAssimpTypes.h"
#include "Import/kavoCameraBuilder.h"
#include "Import/kavoGeometryBuilder.h"
#include "Import/kavoLightBuilder.h"
#include "Import/kavoMaterialBuilder.h"
#include "Import/kavoMetadataReader.h"
#include "Import/kavoParsedFile.h"
#include "Import/kavoTextureSlot.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>
#include <algorithm>
#include <assimp/scene.h>

namespace {

QByteArray key(const aiString &name)
{
    return QByteArray(name.data, int(name.length));
}

/// Adds a child without a core. With an empty name it gets no name attachment.
osg::NodePtr addChild(const osg::NodePtr &parent, const std::string &name)
{
    osg::NodePtr node = osg::Node::create();
    if (!name.empty())
        osg::setName(node, name);
    const osg::CPEditor edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(node);
    return node;
}

void setCore(const osg::NodePtr &node, const osg::NodeCorePtr &core)
{
    const osg::CPEditor edit(node, osg::Node::CoreFieldMask);
    node->setCore(core);
}

osg::NodeCorePtr makeTransform(const osg::Matrix &matrix)
{
    auto transform = osg::Transform::create();
    const osg::CPEditor edit(transform, osg::Transform::MatrixFieldMask);
    transform->setMatrix(matrix);
    return transform;
}

osg::NodeCorePtr makeMaterialGroup(const osg::MaterialPtr &material)
{
    auto group = osg::MaterialGroup::create();
    const osg::CPEditor edit(group);
    group->setMaterial(material);
    return group;
}

template <class LightOrCamera>
void setBeacon(const LightOrCamera &carried, const osg::NodePtr &node)
{
    const osg::CPEditor edit(carried, carried->BeaconFieldMask);
    carried->setBeacon(node);
}

/// The children that are not null. Some of Assimp's readers leave null pointers.
std::vector<const aiNode *> children(const aiNode &node)
{
    std::vector<const aiNode *> result(node.mChildren, node.mChildren + node.mNumChildren);
    result.erase(std::remove(result.begin(), result.end(), nullptr), result.end());
    return result;
}

int countNodes(const aiNode &node)
{
    std::vector<const aiNode *> found { &node };
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::vector<const aiNode *> below = children(*found[i]);
        found.insert(found.end(), below.begin(), below.end());
    }
    return int(found.size());
}

} // namespace

kavoGraphBuilder::kavoGraphBuilder(
    std::shared_ptr<kavoParsedFile> file, const osg::NodePtr &root, const osg::NodePtr &library)
    : m_file(std::move(file))
    , m_root(root)
    , m_library(library)
    , m_pendingNodes { { m_file->scene->mRootNode, root } }
    , m_nodeCount(countNodes(*m_file->scene->mRootNode))
{
    index();
}

int kavoGraphBuilder::stepCount() const
{
    const aiScene &scene = *m_file->scene;
    return std::max(m_stepsDone, int(scene.mNumMaterials + scene.mNumMeshes) + m_nodeCount);
}

bool kavoGraphBuilder::step()
{
    const bool done = buildNextMaterial() || buildNextMesh() || buildNextNode() || buildNextStray();
    m_stepsDone += done;
    return done;
}

void kavoGraphBuilder::index()
{
    const aiScene &scene = *m_file->scene;
    for (unsigned int i = 0; i < scene.mNumLights; ++i)
        m_lightsByName.insert(key(scene.mLights[i]->mName), scene.mLights[i]);
    for (unsigned int i = 0; i < scene.mNumCameras; ++i)
        m_camerasByName.insert(key(scene.mCameras[i]->mName), scene.mCameras[i]);
}

bool kavoGraphBuilder::buildNextMaterial()
{
    if (m_materials.size() == m_file->scene->mNumMaterials)
        return false;
    const aiMaterial &source = *m_file->scene->mMaterials[m_materials.size()];
    m_materials.push_back(
        kavoMaterialBuilder::build(source, image(kavoTextureSlot::of(source).path)));
    setCore(addChild(m_library, source.GetName().C_Str()), makeMaterialGroup(m_materials.back()));
    return true;
}

// Materials with the same texture file share one image. Null if there is no such texture.
osg::ImagePtr kavoGraphBuilder::image(const QString &path)
{
    const QImage pixels = m_file->textures.value(path);
    if (pixels.isNull())
        return osg::NullFC;
    auto &image = m_images[path];
    if (image.get() == osg::NullFC)
        image = kavoMaterialBuilder::buildImage(pixels, path);
    return image.get();
}

bool kavoGraphBuilder::buildNextMesh()
{
    if (m_geometries.size() == m_file->scene->mNumMeshes)
        return false;
    const aiMesh &source = *m_file->scene->mMeshes[m_geometries.size()];
    m_geometries.emplace_back(kavoGeometryBuilder::build(source));
    const osg::GeometryPtr geometry = m_geometries.back().get();
    const osg::CPEditor edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(m_materials[source.mMaterialIndex]);
    return true;
}

bool kavoGraphBuilder::buildNextNode()
{
    if (m_pendingNodes.empty())
        return false;
    const Pending next = m_pendingNodes.back();
    m_pendingNodes.pop_back();
    buildNode(*next.source, next.parent);
    return true;
}

bool kavoGraphBuilder::buildNextStray()
{
    if (m_lightsByName.isEmpty() && m_camerasByName.isEmpty())
        return false;
    const QByteArray name
        = m_lightsByName.isEmpty() ? m_camerasByName.firstKey() : m_lightsByName.firstKey();
    const aiNode standIn(name.toStdString());
    buildNode(standIn, m_root);
    return true;
}

void kavoGraphBuilder::buildNode(const aiNode &source, const osg::NodePtr &parent)
{
    const aiLight *light = m_lightsByName.take(key(source.mName));
    const aiCamera *camera = m_camerasByName.take(key(source.mName));
    const osg::NodePtr place
        = light ? buildLight(*light, source, parent) : buildPlace(source, parent);
    if (camera)
        buildCamera(*camera, place);
    const std::vector<const aiNode *> below = children(source);
    for (auto child = below.rbegin(); child != below.rend();
         ++child) // pending nodes are built last to first
        m_pendingNodes.push_back({ *child, place });
}

osg::NodePtr kavoGraphBuilder::buildPlace(const aiNode &source, const osg::NodePtr &parent)
{
    const osg::NodePtr node = addChild(parent, source.mName.C_Str());
    kavoMetadataReader::attach(node, source.mMetaData);
    if (!source.mTransformation.IsIdentity()) {
        setCore(node, makeTransform(kavoAssimpTypes::toMatrix(source.mTransformation)));
        addMeshes(source, node, 0);
    } else if (source.mNumMeshes > 0) {
        setCore(node, m_geometries[source.mMeshes[0]].get());
        addMeshes(source, node, 1);
    } else {
        setCore(node, osg::Group::create());
    }
    return node;
}

osg::NodePtr kavoGraphBuilder::buildLight(
    const aiLight &light, const aiNode &source, const osg::NodePtr &parent)
{
    const osg::NodePtr node = addChild(parent, source.mName.C_Str());
    kavoMetadataReader::attach(node, source.mMetaData);
    const osg::LightPtr core = kavoLightBuilder::build(light);
    setCore(node, core);
    const osg::NodePtr beacon = addChild(node, std::string(source.mName.C_Str()) + "-beacon");
    setCore(beacon, makeTransform(kavoAssimpTypes::toMatrix(source.mTransformation)));
    setBeacon(core, beacon);
    addMeshes(source, beacon, 0);
    return beacon;
}

void kavoGraphBuilder::buildCamera(const aiCamera &camera, const osg::NodePtr &place)
{
    const osg::Matrix placement = kavoCameraBuilder::placement(camera);
    osg::NodePtr beacon = place;
    if (placement != osg::Matrix::identity()) {
        beacon = addChild(place, std::string(camera.mName.C_Str()) + "-beacon");
        setCore(beacon, makeTransform(placement));
    }
    const osg::CameraPtr result = kavoCameraBuilder::build(camera);
    m_cameras.emplace_back(result);
    setBeacon(result, beacon);
}

void kavoGraphBuilder::addMeshes(
    const aiNode &source, const osg::NodePtr &place, unsigned int first)
{
    for (unsigned int i = first; i < source.mNumMeshes; ++i) {
        const unsigned int mesh = source.mMeshes[i];
        setCore(
            addChild(place, m_file->scene->mMeshes[mesh]->mName.C_Str()), m_geometries[mesh].get());
    }
}
