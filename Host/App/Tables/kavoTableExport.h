#pragma once

#include "Tables/kavoTableOptions.h"
#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <QString>

/// Writes the value pairs of a scene as a table that spreadsheets open and kavoTableImport reads
/// back.
namespace kavoTableExport {

/// \param root the scene or a part of it; null is an empty scene
/// \returns false if the monitor canceled the export; the target file is unchanged then
/// \throws kavoTaskError if the file cannot be written; the target file is unchanged then
bool run(const osg::NodePtr &root, const QString &fileName, const kavoTableOptions &options,
    const kavoMonitor &monitor = {});

} // namespace kavoTableExport
