#pragma once

#include "Tables/kavoTable.h"
#include "Tables/kavoTableOptions.h"

#include <QCoreApplication>
#include <QString>

/// Reads the files that kavoTableExport writes, edited or not.
class kavoTableReader
{
    Q_DECLARE_TR_FUNCTIONS(kavoTableReader)

public:
    /// \param options decimal separator and guard as at the export. The delimiter of CSV is found
    /// out, and that a table is JSON Lines, too; of an empty one the format tells
    /// \throws kavoTaskError if the file cannot be read or is not such a table; it names the line
    static kavoTable read(const QString &fileName, const kavoTableOptions &options);
};
