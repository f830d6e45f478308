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
    const osg::ImagePtr image = osg::Image::create();
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

osg::NodePtr makeGroup(const char *name)
{
    const osg::NodePtr node = osg::Node::create();
    node->setCore(osg::Group::create());
    osg::setName(node, name);
    return node;
}

void attach(const osg::NodePtr &node, const osg::AttachmentPtr &attachment, int binding)
{
    osg::beginEditCP(node, osg::Node::AttachmentsFieldMask);
    node->addAttachment(attachment, osg::UInt16(binding));
    osg::endEditCP(node, osg::Node::AttachmentsFieldMask);
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

osg::NodePtr makeTreeNode(int number)
{
    const osg::NodePtr node = osg::Node::create();
    if (number % 2)
        node->setCore(osg::Transform::create());
    else
        node->setCore(osg::Group::create());
    osg::setName(node, ("Node " + std::to_string(number)).c_str());
    return node;
}

// Fills a group with up to 100 children; \returns how many nodes are still to be made.
int fill(const osg::NodePtr &parent, int nodes)
{
    for (int i = 0; i < 100 && nodes > 0; ++i)
        parent->addChild(makeTreeNode(nodes--));
    return nodes;
}

}

kavoNodePtr BenchScenes::makeTexturedNode()
{
    const osg::GeometryPtr geometry = osg::makeBoxGeo(1, 1, 1, 1, 1, 1);
    geometry->setMaterial(makeMaterial());
    const kavoNodePtr node(osg::Node::create());
    node->setCore(geometry);
    osg::setName(osg::NodePtr(node), "Textured box");
    return node;
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

kavoNodePtr BenchScenes::makeTree(int nodes)
{
    const kavoNodePtr root(makeGroup("Root"));
    std::vector<osg::NodePtr> level { root }, next;
    for (nodes -= 1; nodes > 0; level.swap(next), next.clear()) {
        for (const osg::NodePtr &parent : level) {
            nodes = fill(parent, nodes);
            for (osg::UInt32 i = 0; i < parent->getNChildren(); ++i)
                next.push_back(parent->getChild(i));
        }
    }
    return root;
}
