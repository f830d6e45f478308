#include "Scene/kavoNodeFinder.h"

#include "Scene/kavoNodeWalk.h"

#include <kavoNodeUtils.h>

namespace {

template <class Predicate> osg::NodePtr findFirst(const osg::NodePtr &root, Predicate matches)
{
    osg::NodePtr found = osg::NullFC;
    kavoNodeWalk::forEachNode(root, [&](const osg::NodePtr &node) {
        if (matches(node))
            found = node;
        return found == osg::NullFC;
    });
    return found;
}

} // namespace

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
