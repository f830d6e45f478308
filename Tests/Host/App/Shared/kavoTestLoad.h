#pragma once

#include <kavoNodePtr.h>

#include <QString>
#include <QStringList>

/// Loads scenes for tests, through the host's own loader.
namespace kavoTestLoad {

/// A file of Debian's collection of test models.
QString model(const QString &relativePath);

/// Loads one of those models and makes it the open scene, with the host's message.
/// \returns its root, empty with a failed check if it cannot be loaded
osg::NodePtr open(const QString &relativePath);

/// The first node of that name in the open scene, null if there is none.
osg::NodePtr find(const QString &name);

/// All nodes at and below a node, in the order of a walk.
std::vector<osg::NodePtr> allNodes(const osg::NodePtr &root);

/// Makes a node the open scene, with the host's message.
void show(const osg::NodePtr &root);

}
