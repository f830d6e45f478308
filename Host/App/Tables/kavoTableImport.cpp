#include "Tables/kavoTableImport.h"

#include "Tables/kavoRowPlacer.h"
#include "Tables/kavoTableFile.h"
#include "Tables/kavoValueChanges.h"

#include <kavoNodePtr.h>

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kavoTableImport)
};

QString describe(const kavoImportedTable::Row &row, const QString &problem)
{
    return Text::tr("line %1: '%2' (id %3): %4")
        .arg(QString::number(row.line), QString::fromStdString(row.path), QString::number(row.id),
            problem);
}

} // namespace

QString kavoTableImport::Report::summary() const
{
    return Text::tr("Changed values: %1, nodes: %2").arg(changedValues).arg(changedNodes);
}

std::optional<kavoTableImport::Report> kavoTableImport::run(const osg::NodePtr &root,
    const QString &fileName, const kavoTableOptions &options, const kavoMonitor &monitor)
{
    const kavoImportedTable table = kavoTableFile::read(fileName, options);
    const kavoNodePtr kept(root); // the monitor may close the scene
    kavoTaskProgress progress(root, 2, monitor);
    kavoRowPlacer placer(table.rows);
    if (!placer.search(root, progress))
        return std::nullopt;
    kavoValueChanges changes(table);
    Report report;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        if (!progress.advance())
            return std::nullopt;
        const kavoRowPlacer::Place place = placer.placeOf(i);
        if (place.node == osg::NullFC)
            report.unplacedRows.append(describe(table.rows[i], place.problem));
        else
            changes.compare(table.rows[i], place.node);
    }
    changes.write();
    report.changedValues = changes.valueCount();
    report.changedNodes = changes.nodeCount();
    return report;
}
