#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGNodePtr.h>

/// Questions about nodes that kavoNodeUtils does not answer.
namespace kavoNodeQueries {

/// Returns the attachment of that type or of a derived type, null if there is none.
/// \param container not null
KAVO_SDK_EXPORT osg::AttachmentPtr findAttachment(
    const osg::AttachmentContainerPtr &container, const osg::FieldContainerType &type);

/// Returns whether all bits of the node's traversal mask are set.
/// \param node not null
KAVO_SDK_EXPORT bool isFullyVisible(const osg::NodePtr &node);

} // namespace kavoNodeQueries
