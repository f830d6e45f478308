#include "IO/OSGSharedContainers.h"

#include "Fields/OSGFieldSyntax.h"
#include "IO/OSGSceneScanner.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <vector>

OSG_BEGIN_NAMESPACE

void forEachAttachment(const Field &field, const TargetFunction &function)
{
    for (const auto &[key, attachment] : static_cast<const SFAttachmentMap &>(field).getValue()) {
        if (!attachment->getInternal().getValue()) {
            function(attachment);
        }
    }
}

namespace {

void forEachPointer(const Field &field, const TargetFunction &function)
{
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        if (const FieldContainerPtr target = field.getFieldContainer(i)) {
            function(target);
        }
    }
}

} // namespace

void forEachTarget(const FieldContainerPtr &container, const TargetFunction &function)
{
    const FieldContainerType &type = container->getType();
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        const bool isInternal = type.getFieldDescription(id)->isInternal();
        const Field *field = isInternal ? nullptr : container->getField(id);
        const auto kind = field ? FieldSyntax::of(field->getType()).kind : FieldSyntax::None;
        if (kind == FieldSyntax::Attachments) {
            forEachAttachment(*field, function);
        } else if (kind == FieldSyntax::Pointers) {
            forEachPointer(*field, function);
        }
    }
}

void forEachPointerField(const FieldContainerPtr &owner, const FieldFunction &function)
{
    const FieldContainerType &type = owner->getType();
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        const FieldDescription &description = *type.getFieldDescription(id);
        Field *field = description.isInternal() ? nullptr : owner->getField(id);
        if (field && FieldSyntax::of(field->getType()).kind == FieldSyntax::Pointers) {
            function(*field, description);
        }
    }
}

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

// Deliberate: a name that another container has taken is not used again, as a reader would take
// the one for the other.
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
