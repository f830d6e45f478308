#include "IO/OSGTemporaryReferences.h"

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

// Internal attachments belong to their containers too.
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

// Returns each reached container once, including the starts.
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

// Removes the containers whose ids are not in `ids` and returns them.
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

Int32 &TemporaryReferences::refCount(const FieldContainerPtr &container)
{
    return container->header().refCount;
}

void TemporaryReferences::add(const FieldContainerPtr &container)
{
    if (container) {
        ++refCount(container);
        _containers.push_back(container);
    }
}

void TemporaryReferences::addAllFrom(const Containers &starts)
{
    std::unordered_set<UInt32> ids;
    for (const FieldContainerPtr &container : reachedFrom(starts, ids)) {
        add(container);
    }
}

// Results get a second temporary reference. Usually each container then has more than one
// reference, and no container has to be destroyed.
void TemporaryReferences::release(const Containers &results)
{
    if (_containers.empty()) {
        return;
    }
    std::for_each(results.begin(), results.end(), [this](const auto &result) { add(result); });
    const bool areAllOwned = std::all_of(_containers.begin(), _containers.end(),
        [](const auto &container) { return refCount(container) > 1; });
    if (!areAllOwned) {
        destroyAllButReachedFrom(results);
    }
    for (const FieldContainerPtr &container : _containers) {
        --refCount(container);
    }
    _containers.clear();
}

// Returns the containers with more references than the temporary one and those from each other.
Containers TemporaryReferences::heldElsewhere(const Containers &containers)
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

// Removing the attachments breaks circles of references.
bool TemporaryReferences::destroyLost(Containers &containers)
{
    std::unordered_set<UInt32> ids;
    reachedFrom(heldElsewhere(containers), ids);
    const Containers lost = takeAllBut(ids, containers);
    std::for_each(lost.begin(), lost.end(), removeAttachments);
    std::for_each(lost.begin(), lost.end(), [](const FieldContainerPtr &c) { subRefCP(c); });
    return !lost.empty();
}

// Repeated, because a container may be referenced by a lost one whose class does not report it.
// Only long chains of such containers need more rounds.
void TemporaryReferences::destroyAllButReachedFrom(const Containers &results)
{
    std::unordered_set<UInt32> ids;
    reachedFrom(results, ids);
    Containers unreached = takeAllBut(ids, _containers);
    constexpr int maxRounds = 8;
    for (int round = 0; round < maxRounds && destroyLost(unreached); ++round) { }
    _containers.insert(_containers.end(), unreached.begin(), unreached.end());
}

OSG_END_NAMESPACE
