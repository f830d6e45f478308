#pragma once

#include <OpenSG/OSGNode.h>

struct aiMetadata;

/// Hangs the metadata of a file's node on a node of the scene, as key/value pairs. GUI thread.
namespace kavoMetadataReader {

/// Adds an osg::ValuePairBase with one pair for each entry, values as text, of which
/// numbers read back are the same; nothing where there are no entries.
void attach(const osg::NodePtr &node, const aiMetadata *metadata);

} // namespace kavoMetadataReader
