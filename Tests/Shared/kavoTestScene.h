#pragma once

#include <kavoNodePtr.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

/// Small scenes for tests. The results have no references unless stated otherwise: keep them in a
/// kavoNodePtr or add them to a node that is kept.
namespace kavoTestScene {

/// Creates a node as last child of the parent. Core and name may be null.
osg::NodePtr makeNode(
    const char *name, const osg::NodeCorePtr &core, const osg::NodePtr &parent = osg::NodePtr());
/// Creates a node with a Group core.
osg::NodePtr makeGroup(const char *name, const osg::NodePtr &parent = osg::NodePtr());
/// Creates a node with a geometry that has the material and no vertices.
osg::NodePtr makeGeometry(const char *name, const osg::MaterialPtr &material,
    const osg::NodePtr &parent = osg::NodePtr());
/// Creates a material with a MaterialChunk and a BlendChunk.
osg::ChunkMaterialPtr makeMaterial();

/// Creates a group "Root" with two children: a Transform "Wheel", whose child is a geometry "Tyre"
/// with a material, and a group without a name. The result holds a reference.
kavoNodePtr makeTruck();

} // namespace kavoTestScene
