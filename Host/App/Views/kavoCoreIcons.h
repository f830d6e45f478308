#pragma once

#include <OpenSG/OSGNodeCore.h>

#include <QIcon>

/// Icons that tell nodes apart by the kind of their core.
namespace kavoCoreIcons {

/// The icon for nodes with that core, which may be null.
QIcon icon(const osg::NodeCorePtr &core);

} // namespace kavoCoreIcons
