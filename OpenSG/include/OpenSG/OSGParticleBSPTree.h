#pragma once

#include <OpenSG/OSGConfig.h>

OSG_BEGIN_NAMESPACE

/// Order in which particles are drawn from back to front. Only drawing builds such a tree, and
/// this library does not draw: the tree has no nodes.
class ParticleBSPTree
{
};

OSG_END_NAMESPACE
