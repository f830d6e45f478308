#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QString>

/// Finds the node that a user means.
namespace kavoNodeFinder {

/// The first node at or below the root (parents before children) with this display name. If there
/// is none, the node with this container id in decimal; if there is none either, null.
osg::NodePtr find(const osg::NodePtr &root, const QString &nameOrId);

} // namespace kavoNodeFinder
