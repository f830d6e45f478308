#pragma once

#include <kavoNodePtr.h>

#include <OpenSG/OSGNode.h>

/// What the benchmarks show.
namespace BenchScenes {

/// A node with a name, a box as geometry, and a material of five chunks, one of them a texture.
kavoNodePtr makeTexturedNode();

/// An attachment with 400 fields, which nobody references.
osg::AttachmentPtr makeManyFields();

/// A node that carries as many transform variants, of three rows each, in lists of a given length.
kavoNodePtr makeNodeWithVariants(int count, int listLength);

/// A tree of that many nodes with names: transforms with up to 100 transforms below them, each of
/// which moves a group of its own or, with geometry, a box. A hundred siblings share their box.
kavoNodePtr makeTree(int nodes, bool hasGeometry);

}
