#include "kavoNodeFinder.h"

#include <kavoNodeUtils.h>

#include <OpenSG/OSGNode.h>

#include <vector>

namespace {

// Without recursion: a scene may be deeper than the stack.
template <class Predicate> osg::NodePtr findFirst(const osg::NodePtr &root, Predicate matches)
{
    std::vector<osg::NodePtr> open { root };
    while (!open.empty()) {
        const osg::NodePtr node = open.back();
        open.pop_back();
        if (node == osg::NullFC)
            continue;
        if (matches(node))
            return node;
        for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
            open.push_back(node->getChild(i - 1));
    }
    return osg::NullFC;
}

}

osg::NodePtr kavoNodeFinder::find(const osg::NodePtr &root, const QString &nameOrId)
{
    const osg::NodePtr named = findFirst(root, [&](const osg::NodePtr &node) {
        return QString::fromUtf8(kavoNodeUtils::getName(node)) == nameOrId;
    });
    bool isNumber = false;
    const osg::UInt32 id = nameOrId.toUInt(&isNumber);
    if (named != osg::NullFC || !isNumber)
        return named;
    return findFirst(
        root, [&](const osg::NodePtr &node) { return node.getFieldContainerId() == id; });
}
