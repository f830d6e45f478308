#pragma once

#include <OpenSG/OSGNode.h>

#include <vector>

namespace kavoNodeWalk {

/// Visits the nodes at and below the root, parents before children, until a visit returns false.
/// Works without recursion, because a scene may be deeper than the stack.
/// \param root null for no nodes at all
/// \returns whether all were visited
template <class Visit> bool forEachNode(const osg::NodePtr &root, Visit visit)
{
    std::vector<osg::NodePtr> open { root };
    while (!open.empty()) {
        const osg::NodePtr node = open.back();
        open.pop_back();
        if (node == osg::NullFC)
            continue;
        if (!visit(node))
            return false;
        for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
            open.push_back(node->getChild(i - 1));
    }
    return true;
}

} // namespace kavoNodeWalk
