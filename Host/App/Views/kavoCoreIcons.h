#pragma once

#include <OpenSG/OSGNodeCore.h>

#include <QIcon>

/// Icons for nodes, by the type of their core.
namespace kavoCoreIcons {

/// \param core may be null
QIcon icon(const osg::NodeCorePtr &core);

} // namespace kavoCoreIcons
