#pragma once

#include <kavoNodePtr.h>

class kavoScenegraph
{
public:
    static kavoNodePtr getSelectedNode();
    static const char *getNodeName(const osg::NodePtr &node);
};
