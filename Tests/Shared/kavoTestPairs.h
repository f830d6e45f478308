#pragma once

#include <OSGValuePairBase.h>

#include <OpenSG/OSGNode.h>

#include <string>
#include <vector>

/// Nodes with value pairs for tests.
namespace kavoTestPairs {

struct Pair
{
    std::string key, value;

    bool operator==(const Pair &other) const;
};

/// A Group node with these pairs, or without an attachment if there are none, as last child of the
/// parent. Unnamed if the name is null.
osg::NodePtr addNode(
    const osg::NodePtr &parent, const char *name, const std::vector<Pair> &pairs = {});

/// The node's attachment, null if it has none.
osg::ValuePairBasePtr attachment(const osg::NodePtr &node);

/// The node's pairs; missing values are empty.
std::vector<Pair> of(const osg::NodePtr &node);

}
