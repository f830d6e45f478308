#pragma once

#include <kavoNodePtr.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

/// Small scenes for tests. What is returned has no references of its own: keep it in a kavoNodePtr
/// or hang it below something that is kept.
namespace kavoTestScene {

/// A node with a core (null for none), unnamed if the name is null, as last child of the parent.
osg::NodePtr makeNode(
    const char *name, const osg::NodeCorePtr &core, const osg::NodePtr &parent = osg::NodePtr());
/// The same with a Group core.
osg::NodePtr makeGroup(const char *name, const osg::NodePtr &parent = osg::NodePtr());
/// A geometry without vertices that wears the material.
osg::NodePtr makeGeometry(const char *name, const osg::MaterialPtr &material,
    const osg::NodePtr &parent = osg::NodePtr());
/// A material of two chunks, a MaterialChunk and a BlendChunk.
osg::ChunkMaterialPtr makeMaterial();

/// Group "Root" with children: Transform "Wheel" (child: geometry "Tyre" with a material), and a
/// nameless group. Referenced by the result.
kavoNodePtr makeTruck();

}
