#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <functional>

OSG_BEGIN_NAMESPACE

typedef std::function<void(const FieldContainerPtr &)> TargetFunction;
typedef std::function<void(Field &, const FieldDescription &)> FieldFunction;

/// Calls `function` with every attachment in an SFAttachmentMap that is not internal.
void forEachAttachment(const Field &field, const TargetFunction &function);

/// Calls `function` with every container that a container refers to, in the order of its fields:
/// the targets of fields that are not internal, and attachments that are not.
void forEachTarget(const FieldContainerPtr &container, const TargetFunction &function);

/// Calls `function` with every field of a container that holds pointers and is not internal.
void forEachPointerField(const FieldContainerPtr &owner, const FieldFunction &function);

OSG_END_NAMESPACE
