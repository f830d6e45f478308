#pragma once

#include "kavoTable.h"
#include "kavoTableOptions.h"

#include <OpenSG/OSGNode.h>

#include <QString>
#include <QStringList>

/// Writes the values of an edited table back to the nodes of a scene.
///
/// A value is written only if its cell differs from what an export would write now, so nothing but
/// edits changes anything. A cell that was filled in adds a pair; no pair is ever taken away.
class kavoTableImport
{
public:
    struct Report
    {
        int changedValues = 0;
        int changedNodes = 0;
        QStringList unplacedRows; ///< one line of text for each

        QString summary() const;
    };

    /// \param options format, decimal separator and guard as at the export
    /// \throws kavoTaskError if the file cannot be read or is malformed; nothing is changed then
    static Report run(
        const osg::NodePtr &root, const QString &fileName, const kavoTableOptions &options);

private:
    static int apply(const kavoTable &table, const kavoTable::Row &row, const osg::NodePtr &node);
};
