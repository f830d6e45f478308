#pragma once

#include <OpenSG/OSGNodeCore.h>

#include <QIcon>

/// Icons that tell nodes apart by the kind of their core.
class kavoCoreIcons
{
public:
    /// The icon for nodes with that core, which may be null.
    static QIcon icon(const osg::NodeCorePtr &core);
};
