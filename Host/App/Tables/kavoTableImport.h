#pragma once

#include "Tables/kavoTableOptions.h"
#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

/// Writes the values of an edited table back to the nodes of a scene.
///
/// A value is written only if its cell differs from what an export would write now, so nothing but
/// edits changes anything. A cell that was filled in adds a pair; no pair is ever taken away.
class kavoTableImport
{
    Q_DECLARE_TR_FUNCTIONS(kavoTableImport)

public:
    struct Report
    {
        int changedValues = 0;
        int changedNodes = 0;
        /// Those that kavoRowPlacer has no place for, one line of text for each. Nothing of them
        /// was written.
        QStringList unplacedRows;

        QString summary() const;
    };

    /// \param options format, decimal separator and guard as at the export
    /// \returns nothing if the monitor canceled it; nothing is changed then
    /// \throws kavoTaskError if the file cannot be read or is malformed; nothing is changed then
    static std::optional<Report> run(const osg::NodePtr &root, const QString &fileName,
        const kavoTableOptions &options, const kavoMonitor &monitor = {});
};
