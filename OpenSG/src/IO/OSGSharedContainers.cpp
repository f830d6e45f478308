#include "IO/OSGSharedContainers.h"

#include "IO/OSGSceneScanner.h"
#include "Nodes/OSGContainerTargets.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <vector>

OSG_BEGIN_NAMESPACE

SharedContainers::SharedContainers(const FieldContainerPtr &root)
{
    std::vector<FieldContainerPtr> pending { root };
    _entries[root.getFieldContainerId()];
    while (!pending.empty()) {
        const FieldContainerPtr container = pending.back();
        pending.pop_back();
        forEachTarget(container, [&](const FieldContainerPtr &target) {
            const auto [entry, isNew] = _entries.try_emplace(target.getFieldContainerId());
            entry->second.isShared = !isNew;
            if (isNew) {
                pending.push_back(target);
            }
        });
    }
}

bool SharedContainers::isShared(const FieldContainerPtr &container) const
{
    return _entries.at(container.getFieldContainerId()).isShared;
}

const std::string &SharedContainers::name(const FieldContainerPtr &container) const
{
    return _entries.at(container.getFieldContainerId()).name;
}

const std::string &SharedContainers::giveName(const FieldContainerPtr &container)
{
    std::string &name = _entries.at(container.getFieldContainerId()).name;
    name = makeName(container);
    _names.insert(name);
    return name;
}

// Deliberate: each name is used for one container only. A reader would confuse two containers with
// the same name.
std::string SharedContainers::makeName(const FieldContainerPtr &container) const
{
    const Char8 *ownName = getName(AttachmentContainerPtr::dcast(container));
    if (ownName && isUsable(ownName)) {
        return ownName;
    }
    std::string name = container->getTypeName() + std::to_string(container.getFieldContainerId());
    while (!isUsable(name)) {
        name += '_';
    }
    return name;
}

bool SharedContainers::isUsable(const std::string &name) const
{
    return SceneScanner::isIdentifier(name) && _names.count(name) == 0;
}

OSG_END_NAMESPACE
