#pragma once

#include <QString>

/// Prints a field of the scene for scripts and tests.
namespace kavoFieldPrinter {

/// Writes the field's text and a line feed to standard output.
/// \param address container id, point and field name, for example "163.minFilter"
/// \throws kavoTaskError if there is no such field
void print(const QString &address);

} // namespace kavoFieldPrinter
