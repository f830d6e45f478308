#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>

OSG_BEGIN_NAMESPACE

class NodeCore;

/// Handle to the core of a node.
typedef FCPtr<AttachmentContainerPtr, NodeCore> NodeCorePtr;

OSG_END_NAMESPACE
