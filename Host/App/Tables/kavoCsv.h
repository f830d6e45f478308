#pragma once

#include "Tables/kavoImportedTable.h"
#include "Tables/kavoRowWriter.h"
#include "Tables/kavoTableOptions.h"

#include <memory>
#include <ostream>
#include <string>

/// Tables of value pairs as CSV (RFC 4180). The first columns are id, path, name and type.
namespace kavoCsv {

/// Quotes cells where necessary and ends lines in CR LF.
std::unique_ptr<kavoRowWriter> createWriter(std::ostream &out, const kavoTableOptions &options);

/// Reads a table that such a writer wrote. A user may have removed, added and moved columns of
/// keys. Detects the delimiter. \throws kavoTaskError if the text is malformed
kavoImportedTable read(const std::string &text, const kavoTableOptions &options);

} // namespace kavoCsv
