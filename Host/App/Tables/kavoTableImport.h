#pragma once

#include "Tables/kavoTableOptions.h"
#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <QString>
#include <QStringList>

#include <optional>

/// Writes the values of an edited table back to the nodes of a scene.
///
/// A value changes only if its cell differs from what an export would write now. A filled cell
/// without a pair adds one; an import never removes pairs.
namespace kavoTableImport {

struct Report
{
    int changedValues = 0;
    int changedNodes = 0;
    /// One line of text for each row that kavoRowPlacer could not place. The import ignored these
    /// rows.
    QStringList unplacedRows;

    QString summary() const;
};

/// \param options format, decimal separator and formula guard of the export
/// \returns nothing if the monitor canceled the import; the scene is unchanged then
/// \throws kavoTaskError if the file cannot be read or is malformed; the scene is unchanged then
std::optional<Report> run(const osg::NodePtr &root, const QString &fileName,
    const kavoTableOptions &options, const kavoMonitor &monitor = {});

} // namespace kavoTableImport
