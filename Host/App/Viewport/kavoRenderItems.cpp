#include "Viewport/kavoRenderItems.h"

#include "Scene/kavoContainers.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGTransform.h>

namespace {

struct Pending
{
    osg::NodePtr node;
    QMatrix4x4 toWorld;
    osg::UInt32 material; // material of the nearest material group above, 0 for none
};

/// Applies what the core does to the whole subtree: a transformation or a material.
void applyCore(Pending &at)
{
    const osg::NodeCorePtr core = at.node->getCore();
    if (const auto transform = osg::TransformPtr::dcast(core); transform != osg::NullFC)
        at.toWorld *= kavoRenderItems::toMatrix(transform->getMatrix());
    else if (const auto group = osg::MaterialGroupPtr::dcast(core);
             group != osg::NullFC && group->getMaterial() != osg::NullFC)
        at.material = kavoContainers::id(group->getMaterial());
}

void addGeometry(const Pending &at, std::vector<kavoRenderItem> &items)
{
    const auto geometry = osg::GeometryPtr::dcast(at.node->getCore());
    if (geometry == osg::NullFC)
        return;
    const osg::UInt32 own = kavoContainers::id(geometry->getMaterial());
    items.push_back({ kavoContainers::id(at.node), kavoContainers::id(geometry),
        at.material ? at.material : own, at.toWorld });
}

} // namespace

std::vector<kavoRenderItem> kavoRenderItems::of(const osg::NodePtr &root)
{
    std::vector<kavoRenderItem> items;
    std::vector<Pending> pending { { root, QMatrix4x4(), 0 } };
    while (!pending.empty()) {
        Pending at = pending.back();
        pending.pop_back();
        if (at.node == osg::NullFC || at.node->getTravMask() == 0)
            continue;
        applyCore(at);
        addGeometry(at, items);
        for (osg::UInt32 i = at.node->getNChildren(); i-- > 0;)
            pending.push_back({ at.node->getChild(i), at.toWorld, at.material });
    }
    return items;
}

QMatrix4x4 kavoRenderItems::toMatrix(const osg::Matrix &matrix)
{
    return QMatrix4x4(matrix.getValues()).transposed(); // Qt reads rows, OpenSG stores columns
}
