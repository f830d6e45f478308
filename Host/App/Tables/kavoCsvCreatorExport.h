#pragma once

#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNodePtr.h>

#include <QString>

/// Export of value pairs through the graph operation "ValuePairCSVCreator".
namespace kavoCsvCreatorExport {

/// \param root the scene or a part of it; null is an empty scene
/// \param takesAllNodes If true, also exports nodes that are not fully visible.
/// \returns false if the monitor canceled the export; the target file is unchanged then
/// \throws kavoTaskError if the file cannot be written; the target file is unchanged then
bool run(const osg::NodePtr &root, const QString &fileName, bool takesAllNodes,
    const kavoMonitor &monitor = {});

} // namespace kavoCsvCreatorExport
