#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QString>

/// Finds nodes for users, who know them by name or by container id.
namespace kavoNodeFinder {

/// The first node at or below the root, parents before children, with this display name; else
/// the one with this decimal container id; else null.
osg::NodePtr find(const osg::NodePtr &root, const QString &nameOrId);

} // namespace kavoNodeFinder
