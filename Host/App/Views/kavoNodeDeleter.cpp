#include "Views/kavoNodeDeleter.h"

#include "Scene/kavoCameraRegistry.h"
#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"

#include <OpenSG/OSGLight.h>
#include <kavoScenegraph.h>

namespace {

template <class Beaconed> void forgetBeacon(const Beaconed &container, const osg::NodePtr &deleted)
{
    using Class = typename Beaconed::StoredObjectType;
    if (container == osg::NullFC || !kavoContainers::isWithin(container->getBeacon(), deleted))
        return;
    const osg::CPEditor edit(container, Class::BeaconFieldMask);
    container->setBeacon(osg::NullFC);
}

} // namespace

bool kavoNodeDeleter::canDelete(const osg::NodePtr &node)
{
    const osg::NodePtr root = kavoScenegraph::getRoot();
    return node != root && kavoContainers::isWithin(node, root);
}

void kavoNodeDeleter::deleteNode(osg::UInt32 id, const kavoOpenScene &scene)
{
    const osg::NodePtr node = kavoContainers::node(id);
    if (node == osg::NullFC || !canDelete(node))
        return;
    for (const kavoOpenScene::Entry &light : scene.lights())
        forgetBeacon(osg::LightPtr::dcast(kavoContainers::find(light.core)), node);
    for (const osg::UInt32 camera : kavoCameraRegistry::nodeIds())
        forgetBeacon(kavoCameraRegistry::at(camera), node);
    const osg::NodePtr parent = node->getParent();
    const osg::CPEditor edit(parent, osg::Node::ChildrenFieldMask);
    parent->subChild(node);
}
