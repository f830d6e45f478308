#pragma once

#include <OpenSG/OSGNodePtr.h>

class kavoNodePtr
{
public:
    operator osg::NodePtr() const;
    bool operator==(const osg::NullFieldContainerPtr &null) const;
};
