#pragma once

#include <OSGValuePairBase.h>

#include <OpenSG/OSGNode.h>

#include <string>

/// The value pairs attached to nodes.
class kavoValuePairs
{
public:
    /// The node's value pairs, null if it has none.
    static osg::ValuePairBase *of(const osg::NodePtr &node);

    /// The value of the pair with that index, empty where it is missing.
    static const std::string &value(const osg::ValuePairBase &pairs, int index);

    /// Changes the value of the pair with that index.
    static void setValue(const osg::NodePtr &node, int index, const std::string &value);

    /// Adds a pair behind those that the node has. Values for which there was no key stay so.
    static void append(const osg::NodePtr &node, const std::string &key, const std::string &value);
};
