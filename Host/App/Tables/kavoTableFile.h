#pragma once

#include "Tables/kavoImportedTable.h"
#include "Tables/kavoRowWriter.h"
#include "Tables/kavoTableOptions.h"

#include <QString>

#include <memory>
#include <ostream>

/// Files with tables of value pairs, CSV or JSON Lines.
namespace kavoTableFile {

/// Reads a file that createWriter() wrote and a user may have edited. Detects the format and the
/// delimiter; for an empty file, `options.format` decides.
/// \param options decimal separator and formula guard of the export
/// \throws kavoTaskError if the file cannot be read or is malformed; the message names the line
kavoImportedTable read(const QString &fileName, const kavoTableOptions &options);

/// Creates a writer for the format of the options.
std::unique_ptr<kavoRowWriter> createWriter(std::ostream &out, const kavoTableOptions &options);

} // namespace kavoTableFile
