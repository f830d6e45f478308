#pragma once

#include "Tables/kavoTableColumns.h"
#include "Tables/kavoTableOptions.h"
#include "Tables/kavoTableWriter.h"
#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <QString>

#include <ostream>

class kavoPathWalk;

/// Writes the value pairs of a scene as a table that spreadsheets open and kavoTableImport reads
/// back: a row for each node that has pairs, a column for each key.
///
/// It walks the scene twice, for the columns and for the rows, and keeps none of them in memory.
class kavoTableExport
{
public:
    /// \param root the scene or a part of it; null is an empty scene
    kavoTableExport(const osg::NodePtr &root, const kavoTableOptions &options);

    /// \returns false if the monitor canceled it; no file is left then
    /// \throws kavoTaskError if the file cannot be written; no part of it is left then
    bool run(const QString &fileName, const kavoMonitor &monitor = {});

private:
    bool collectColumns(kavoTaskProgress &progress);
    bool writeRows(
        const std::ostream &out, kavoTableWriter &writer, kavoTaskProgress &progress) const;
    const osg::ValuePairBase *pairsOfRow(const kavoPathWalk &walk) const;

    osg::NodePtr m_root;
    kavoTableOptions m_options;
    kavoTableColumns m_columns;
};
