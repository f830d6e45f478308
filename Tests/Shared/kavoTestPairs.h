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

/// Adds a Group node with these pairs as last child of the parent. The node has no attachment if
/// there are no pairs, and no name if `name` is null.
osg::NodePtr addNode(
    const osg::NodePtr &parent, const char *name, const std::vector<Pair> &pairs = {});

/// Returns the node's attachment, null if it has none.
osg::ValuePairBasePtr attachment(const osg::NodePtr &node);

/// Returns the node's pairs. Missing values are empty.
std::vector<Pair> of(const osg::NodePtr &node);

} // namespace kavoTestPairs
