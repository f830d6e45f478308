#pragma once

#include <OpenSG/OSGNodePtr.h>

class kavoNodeUtils
{
public:
    static const char *getName(const osg::NodePtr &node);
    static bool hasName(const osg::NodePtr &node);
};
