#pragma once

#include <OpenSG/OSGNode.h>

struct aiMetadata;

/// Converts the metadata of a file's node to key/value pairs. GUI thread.
namespace kavoMetadataReader {

/// Attaches an osg::ValuePairBase with one pair for each entry to the node, if there are entries.
/// Values are text; numbers read back from it are unchanged.
void attach(const osg::NodePtr &node, const aiMetadata *metadata);

} // namespace kavoMetadataReader
