#include "IO/OSGContainerKeeper.h"

#include "Containers/OSGFieldContainerHeader.h"
#include "Nodes/OSGContainerTargets.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGNode.h>

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

OSG_BEGIN_NAMESPACE

namespace {

typedef std::vector<FieldContainerPtr> Containers;

/// Internal attachments belong to their containers like all others.
void forEachReachedDirectly(const FieldContainerPtr &container, const TargetFunction &function)
{
    forEachTarget(container, function);
    if (const auto owner = AttachmentContainerPtr::dcast(container)) {
        for (const auto &[key, attachment] : owner->getSFAttachments()->getValue()) {
            if (attachment->getInternal().getValue()) {
                function(attachment);
            }
        }
    }
}

/// The starts among them; each once.
Containers reachedFrom(const Containers &starts, std::unordered_set<UInt32> &ids)
{
    Containers reached;
    const auto reach = [&](const FieldContainerPtr &container) {
        if (container && ids.insert(container.getFieldContainerId()).second) {
            reached.push_back(container);
        }
    };
    std::for_each(starts.begin(), starts.end(), reach);
    for (std::size_t i = 0; i < reached.size(); ++i) {
        const FieldContainerPtr container = reached[i];
        forEachReachedDirectly(container, reach);
    }
    return reached;
}

void removeAttachments(const FieldContainerPtr &container)
{
    if (const auto owner = AttachmentContainerPtr::dcast(container)) {
        const AttachmentMap attachments = owner->getSFAttachments()->getValue();
        for (const auto &[key, attachment] : attachments) {
            owner->subAttachment(attachment, static_cast<UInt16>(key));
        }
    }
}

/// Takes away those whose ids are not among these.
Containers takeAllBut(const std::unordered_set<UInt32> &ids, Containers &containers)
{
    const auto others = std::stable_partition(
        containers.begin(), containers.end(), [&](const FieldContainerPtr &container) {
            return ids.count(container.getFieldContainerId()) > 0;
        });
    const Containers taken(others, containers.end());
    containers.erase(others, containers.end());
    return taken;
}

} // namespace

Int32 &ContainerKeeper::refCount(const FieldContainerPtr &container)
{
    return container->header().refCount;
}

void ContainerKeeper::keep(const FieldContainerPtr &container)
{
    if (container) {
        ++refCount(container);
        _kept.push_back(container);
    }
}

void ContainerKeeper::keepAllFrom(const Containers &starts)
{
    std::unordered_set<UInt32> ids;
    for (const FieldContainerPtr &container : reachedFrom(starts, ids)) {
        keep(container);
    }
}

// Mostly every container has an owner by now, or is a result, which another reference of ours
// marks: then there is no need to look at what leads where.
void ContainerKeeper::release(const Containers &results)
{
    if (_kept.empty()) {
        return;
    }
    std::for_each(results.begin(), results.end(), [this](const auto &result) { keep(result); });
    const bool areAllOwned = std::all_of(
        _kept.begin(), _kept.end(), [](const auto &container) { return refCount(container) > 1; });
    if (!areAllOwned) {
        destroyAllButReachedFrom(results);
    }
    for (const FieldContainerPtr &container : _kept) {
        --refCount(container);
    }
    _kept.clear();
}

// Those that have more references than the keeper's and the ones that they give each other.
Containers ContainerKeeper::heldElsewhere(const Containers &containers)
{
    std::unordered_map<UInt32, Int32> known;
    const auto count = [&](const FieldContainerPtr &container) {
        if (container) {
            ++known[container.getFieldContainerId()];
        }
    };
    for (const FieldContainerPtr &container : containers) {
        count(container);
        container->forEachHeld(count);
    }
    Containers held;
    std::copy_if(containers.begin(), containers.end(), std::back_inserter(held),
        [&](const FieldContainerPtr &container) {
            return refCount(container) > known[container.getFieldContainerId()];
        });
    return held;
}

// Containers that refer to each other in a circle do so by attachments somewhere.
bool ContainerKeeper::destroyLost(Containers &containers)
{
    std::unordered_set<UInt32> ids;
    reachedFrom(heldElsewhere(containers), ids);
    const Containers lost = takeAllBut(ids, containers);
    std::for_each(lost.begin(), lost.end(), removeAttachments);
    std::for_each(lost.begin(), lost.end(), [](const FieldContainerPtr &c) { subRefCP(c); });
    return !lost.empty();
}

// What is held by a lost container that does not say so seems to be held elsewhere until that one
// has gone. More rounds would be needed only by long chains of such containers.
void ContainerKeeper::destroyAllButReachedFrom(const Containers &results)
{
    std::unordered_set<UInt32> ids;
    reachedFrom(results, ids);
    Containers unreached = takeAllBut(ids, _kept);
    constexpr int maxRounds = 8;
    for (int round = 0; round < maxRounds && destroyLost(unreached); ++round) { }
    _kept.insert(_kept.end(), unreached.begin(), unreached.end());
}

OSG_END_NAMESPACE
