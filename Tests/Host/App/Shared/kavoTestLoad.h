#pragma once

#include <kavoNodePtr.h>

#include <QString>
#include <QStringList>

/// Loads scenes with the host's loader.
namespace kavoTestLoad {

/// The path of a file in Debian's collection of test models.
QString model(const QString &relativePath);

/// Loads a model of the collection and makes it the open scene, with the host's message.
/// \returns the root, null if it cannot be loaded
osg::NodePtr open(const QString &relativePath);

/// The first node of this name in the open scene, null if there is none.
osg::NodePtr find(const QString &name);

/// The root and all nodes below it, breadth first.
std::vector<osg::NodePtr> allNodes(const osg::NodePtr &root);

/// Makes a node the open scene, with the host's message.
void show(const osg::NodePtr &root);

} // namespace kavoTestLoad
