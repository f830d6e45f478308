#include "kavoTestScene.h"

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>

namespace kavoTestScene {

osg::NodePtr makeNode(const char *name, const osg::NodeCorePtr &core, const osg::NodePtr &parent)
{
    const osg::NodePtr node = osg::Node::create();
    node->setCore(core);
    if (name)
        osg::setName(node, name);
    if (parent != osg::NullFC)
        parent->addChild(node);
    return node;
}

osg::NodePtr makeGroup(const char *name, const osg::NodePtr &parent)
{
    return makeNode(name, osg::Group::create(), parent);
}

osg::NodePtr makeGeometry(
    const char *name, const osg::MaterialPtr &material, const osg::NodePtr &parent)
{
    const osg::GeometryPtr geometry = osg::Geometry::create();
    geometry->setMaterial(material);
    return makeNode(name, geometry, parent);
}

osg::ChunkMaterialPtr makeMaterial()
{
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    material->addChunk(osg::MaterialChunk::create());
    material->addChunk(osg::BlendChunk::create());
    return material;
}

kavoNodePtr makeTruck()
{
    const kavoNodePtr root(makeGroup("Root"));
    const osg::NodePtr wheel = makeNode("Wheel", osg::Transform::create(), root);
    makeGeometry("Tyre", makeMaterial(), wheel);
    makeGroup(nullptr, root);
    return root;
}

} // namespace kavoTestScene
