#include "BenchScenes.h"

#include "OSGManyFields.h"

#include <OSGTransformVariantList.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTransform.h>

namespace {

osg::TextureChunkPtr makeTexture()
{
    osg::ImagePtr image = osg::Image::create();
    image->set(osg::Image::OSG_RGB_PF, 64, 64);
    const osg::TextureChunkPtr texture = osg::TextureChunk::create();
    texture->setImage(image);
    return texture;
}

osg::ChunkMaterialPtr makeMaterial()
{
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    material->addChunk(osg::MaterialChunk::create());
    material->addChunk(makeTexture());
    material->addChunk(osg::BlendChunk::create());
    material->addChunk(osg::DepthChunk::create());
    material->addChunk(osg::PolygonChunk::create());
    return material;
}

void attach(const osg::NodePtr &node, const osg::AttachmentPtr &attachment, int binding)
{
    const osg::CPEditor edit(node, osg::Node::AttachmentsFieldMask);
    node->addAttachment(attachment, osg::UInt16(binding));
}

osg::TransformVariantListPtr makeVariants(int count)
{
    const osg::TransformVariantListPtr variants = osg::TransformVariantList::create();
    for (int i = 0; i < count; ++i) {
        const osg::TransformVariantPtr variant = osg::TransformVariant::create();
        variant->setLabel("Place " + std::to_string(i));
        variants->addVariant(variant);
    }
    return variants;
}

osg::NodePtr makeNode(const std::string &name, const osg::NodeCorePtr &core)
{
    const osg::NodePtr node = osg::Node::create();
    node->setCore(core);
    osg::setName(node, name);
    return node;
}

osg::NodePtr makeGroup(const char *name)
{
    return makeNode(name, osg::Group::create());
}

// A transform that moves its children to a place within a cube of edge `size`.
osg::NodePtr makePlace(int number, osg::Real32 size)
{
    const osg::TransformPtr transform = osg::Transform::create();
    const auto part = [&](int i) { return size * (osg::Real32(i % 10) / 10 - 0.5f); };
    transform->getMatrix().setTranslate(part(number), part(number / 10), part(number / 3));
    return makeNode("Place " + std::to_string(number), transform);
}

// Adds up to 100 pairs of nodes below `parent`: a transform and its only child.
// \returns the transforms
std::vector<osg::NodePtr> addPlaces(
    const osg::NodePtr &parent, int pairs, osg::Real32 size, bool hasGeometry)
{
    std::vector<osg::NodePtr> places;
    const osg::NodeCorePtr box = osg::makeBoxGeo(0.02f, 0.02f, 0.02f, 1, 1, 1);
    for (int i = 0; i < std::min(pairs, 100); ++i) {
        places.push_back(makePlace(i, size));
        parent->addChild(places.back());
        if (hasGeometry)
            places.back()->addChild(makeNode("Box", box));
        else
            places.back()->addChild(makeNode("Group", osg::Group::create()));
    }
    return places;
}

}

kavoNodePtr BenchScenes::makeTexturedNode()
{
    const osg::GeometryPtr geometry = osg::makeBoxGeo(1, 1, 1, 1, 1, 1);
    geometry->setMaterial(makeMaterial());
    return makeNode("Textured box", geometry);
}

osg::AttachmentPtr BenchScenes::makeManyFields()
{
    return osg::ManyFields::create();
}

kavoNodePtr BenchScenes::makeNodeWithVariants(int count, int listLength)
{
    const kavoNodePtr node(makeGroup("Variants"));
    for (int begin = 0; begin < count; begin += listLength)
        attach(node, makeVariants(std::min(listLength, count - begin)), begin / listLength);
    return node;
}

kavoNodePtr BenchScenes::makeTree(int nodes, bool hasGeometry)
{
    const kavoNodePtr root(makeGroup("Root"));
    std::vector<osg::NodePtr> level { root }, next;
    osg::Real32 size = 10;
    for (int pairs = nodes / 2; pairs > 0; level.swap(next), next.clear(), size /= 5) {
        for (std::size_t i = 0; i < level.size() && pairs > 0; ++i) {
            const auto places = addPlaces(level[i], pairs, size, hasGeometry);
            next.insert(next.end(), places.begin(), places.end());
            pairs -= int(places.size());
        }
    }
    return root;
}
