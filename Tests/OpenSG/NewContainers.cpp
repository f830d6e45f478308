#include "NewContainers.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerType.h>

#include <algorithm>
#include <iterator>
#include <map>

using namespace osg;

namespace {

const auto &store()
{
    return *FieldContainerFactory::the()->getFieldContainerStore();
}

typedef std::vector<FieldContainerPtr> Containers;
typedef std::map<UInt32, int> CountById;

void addTargets(const Field &field, Containers &targets)
{
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        if (const FieldContainerPtr target = field.getFieldContainer(i)) {
            targets.push_back(target);
        }
    }
}

Containers targetsOf(const FieldContainerPtr &container)
{
    Containers targets;
    const FieldContainerType &type = container->getType();
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        if (!type.getFieldDescription(id)->isInternal()) {
            addTargets(*container->getField(id), targets);
        }
    }
    if (const auto owner = AttachmentContainerPtr::dcast(container)) {
        for (const auto &[key, attachment] : owner->getSFAttachments()->getValue()) {
            targets.push_back(attachment);
        }
    }
    return targets;
}

CountById countPointers(const Containers &containers)
{
    CountById count;
    for (const FieldContainerPtr &container : containers) {
        for (const FieldContainerPtr &target : targetsOf(container)) {
            ++count[target.getFieldContainerId()];
        }
    }
    return count;
}

// Takes away what nothing leads to until only circles are left.
bool hasCircle(const Containers &containers, CountById pointersTo)
{
    Containers free;
    std::copy_if(containers.begin(), containers.end(), std::back_inserter(free),
        [&](const auto &container) { return pointersTo[container.getFieldContainerId()] == 0; });
    for (std::size_t i = 0; i < free.size(); ++i) {
        for (const FieldContainerPtr &target : targetsOf(free[i])) {
            if (--pointersTo[target.getFieldContainerId()] == 0) {
                free.push_back(target);
            }
        }
    }
    return free.size() < containers.size();
}

} // namespace

NewContainers::NewContainers()
    : m_firstId(UInt32(store().size()))
{
}

std::vector<FieldContainerPtr> NewContainers::all() const
{
    std::vector<FieldContainerPtr> result;
    std::copy_if(store().begin() + m_firstId, store().end(), std::back_inserter(result),
        [](const auto &container) { return container != NullFC; });
    return result;
}

bool NewContainers::goTogether() const
{
    const std::vector<FieldContainerPtr> containers = all();
    CountById pointersTo = countPointers(containers);
    const bool areCounted
        = std::all_of(containers.begin(), containers.end(), [&](const auto &container) {
              return container.getRefCount() >= pointersTo[container.getFieldContainerId()];
          });
    return areCounted && !hasCircle(containers, pointersTo);
}
