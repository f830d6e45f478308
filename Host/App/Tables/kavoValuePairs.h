#pragma once

#include <OSGValuePairBase.h>

#include <OpenSG/OSGNode.h>

#include <string>

/// The value pairs attached to nodes.
namespace kavoValuePairs {

/// Returns the node's value pairs, or null if it has none.
osg::ValuePairBase *of(const osg::NodePtr &node);

/// Returns the value with that index, or an empty text if the list of values is shorter.
const std::string &value(const osg::ValuePairBase &pairs, int index);

/// Changes the value with that index, in one edit.
void setValue(const osg::NodePtr &node, int index, const std::string &value);

/// Adds a pair after the node's last key, in one edit. Surplus values move behind it.
void append(const osg::NodePtr &node, const std::string &key, const std::string &value);

} // namespace kavoValuePairs
