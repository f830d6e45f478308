#pragma once

#include "Tables/kavoImportedTable.h"
#include "Tables/kavoRowWriter.h"

#include <memory>
#include <ostream>
#include <string>

/// Tables of value pairs as JSON Lines. Each line is an object with the members id, path, name,
/// type and values. The values are an object that holds a text for each key, or a list of texts if
/// the node has the key several times.
namespace kavoJsonLines {

std::unique_ptr<kavoRowWriter> createWriter(std::ostream &out);

/// Reads a table that such a writer wrote. Ignores all members but id, path and values.
/// \throws kavoTaskError if the text is malformed
kavoImportedTable read(const std::string &text);

} // namespace kavoJsonLines
