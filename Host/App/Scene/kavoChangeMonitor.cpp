#include "Scene/kavoChangeMonitor.h"

#include "Scene/kavoContainers.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGThread.h>

#include <QAbstractEventDispatcher>

namespace {

kavoChanges collect(const osg::ChangeList &list)
{
    kavoChanges changes;
    for (auto id = list.beginDestroyed(); id != list.endDestroyed(); ++id)
        changes.destroyed.insert(*id);
    for (auto id = list.beginCreated(); id != list.endCreated(); ++id) {
        if (!changes.destroyed.contains(*id))
            changes.created.insert(*id);
    }
    for (auto entry = list.beginChanged(); entry != list.endChanged(); ++entry) {
        if (!changes.destroyed.contains(entry->first))
            changes.changed[entry->first] |= entry->second;
    }
    return changes;
}

template <class Handles> void touch(const Handles &containers, QSet<osg::UInt32> &touched);

void touch(const osg::FieldContainerPtr &container, QSet<osg::UInt32> &touched)
{
    if (container == osg::NullFC)
        return;
    touched.insert(container.getFieldContainerId());
    if (const auto attachment = osg::AttachmentPtr::dcast(container); attachment != osg::NullFC)
        touch(attachment->getParents(), touched);
    else if (const auto core = osg::NodeCorePtr::dcast(container); core != osg::NullFC)
        touch(core->getParents(), touched);
}

template <class Handles> void touch(const Handles &containers, QSet<osg::UInt32> &touched)
{
    for (const auto &container : containers)
        touch(osg::FieldContainerPtr(container), touched);
}

} // namespace

kavoChangeMonitor::kavoChangeMonitor(QObject *parent)
    : QObject(parent)
{
    // A busy loop does not block, and an idle loop does not wake up for its own work. Only both
    // signals together cover every round.
    auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &kavoChangeMonitor::drain);
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &kavoChangeMonitor::drain);
}

void kavoChangeMonitor::drain()
{
    osg::ChangeList *list = osg::Thread::getCurrentChangeList();
    if (!list)
        return;
    kavoChanges changes = collect(*list);
    list->clearAll();
    for (auto entry = changes.changed.cbegin(); entry != changes.changed.cend(); ++entry)
        touch(kavoContainers::find(entry.key()), changes.touched);
    if (!changes.isEmpty())
        emit changed(changes);
}
