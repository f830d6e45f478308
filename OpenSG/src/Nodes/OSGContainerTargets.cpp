#include "Nodes/OSGContainerTargets.h"

#include "Fields/OSGFieldSyntax.h"

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentMapFields.h>

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

OSG_END_NAMESPACE
