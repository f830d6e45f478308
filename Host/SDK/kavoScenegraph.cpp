#include <kavoScenegraph.h>

#include <kavoController.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoNodeUtils.h>

#include <QObject>

namespace {

struct Scene
{
    kavoNodePtr root;
    kavoNodePtr selected;
    QObject announcer;
    bool announcementPending = false;
};

// Never destroyed: modules ask for the selection during static destruction, when OpenSG can no
// longer release references.
Scene &scene()
{
    static auto *const instance = new Scene;
    return *instance;
}

void announceSelection()
{
    scene().announcementPending = false;
    kavoMessage selectionChanged(kavoMessageIds::selectionChanged);
    kavoController::sendMessage(selectionChanged);
    if (scene().selected == osg::NullFC)
        return;
    kavoMessage nodeShown(kavoMessageIds::nodeShown);
    nodeShown.set("node", osg::NodePtr(scene().selected));
    kavoController::sendMessage(nodeShown);
}

} // namespace

kavoNodePtr kavoScenegraph::getSelectedNode()
{
    return scene().selected;
}

const char *kavoScenegraph::getNodeName(const osg::NodePtr &node)
{
    return kavoNodeUtils::getName(node);
}

void kavoScenegraph::setSelectedNode(const osg::NodePtr &node)
{
    scene().selected = node;
    if (scene().announcementPending)
        return;
    scene().announcementPending = true;
    QMetaObject::invokeMethod(&scene().announcer, announceSelection, Qt::QueuedConnection);
}

osg::NodePtr kavoScenegraph::getRoot()
{
    return scene().root;
}

void kavoScenegraph::setRoot(const osg::NodePtr &root)
{
    if (osg::NodePtr(scene().root) == root)
        return;
    if (scene().selected != osg::NullFC)
        setSelectedNode(osg::NullFC);
    scene().root = root;
}
