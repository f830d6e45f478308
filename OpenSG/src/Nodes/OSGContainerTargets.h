#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <functional>

OSG_BEGIN_NAMESPACE

typedef std::function<void(const FieldContainerPtr &)> TargetFunction;
typedef std::function<void(Field &, const FieldDescription &)> FieldFunction;

/// Calls `function` for every attachment that is not internal. `field` must be an SFAttachmentMap.
void forEachAttachment(const Field &field, const TargetFunction &function);

/// Calls `function` for every container that a container refers to, in the order of its fields.
/// Leaves out internal fields and internal attachments.
void forEachTarget(const FieldContainerPtr &container, const TargetFunction &function);

/// Calls `function` for every field of `owner` that holds pointers and is not internal.
void forEachPointerField(const FieldContainerPtr &owner, const FieldFunction &function);

OSG_END_NAMESPACE
