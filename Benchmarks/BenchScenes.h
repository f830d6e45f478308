#pragma once

#include <kavoNodePtr.h>

#include <OpenSG/OSGNode.h>

/// The scenes of the benchmarks.
namespace BenchScenes {

/// A node with a name, a box as geometry, and a material of five chunks, one of them a texture.
kavoNodePtr makeTexturedNode();

/// An attachment with 400 fields. Its reference count is 0.
osg::AttachmentPtr makeManyFields();

/// A node with `count` transform variants in lists of `listLength`. Each variant has three rows.
kavoNodePtr makeNodeWithVariants(int count, int listLength);

/// A tree of `nodes` named nodes. A transform has up to 100 transforms below it. Each of them moves
/// a group or, if `hasGeometry`, a box that up to 100 siblings share.
kavoNodePtr makeTree(int nodes, bool hasGeometry);

}
