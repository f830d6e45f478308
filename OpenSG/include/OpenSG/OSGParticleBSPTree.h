#pragma once

#include <OpenSG/OSGConfig.h>

OSG_BEGIN_NAMESPACE

/// The order of particles from back to front. Only renderers build such a tree. This library has no
/// renderer, so the tree has no nodes.
class ParticleBSPTree
{
};

OSG_END_NAMESPACE
