#pragma once

class QByteArray;

/// Where jobs print to.
namespace kavoStandardOutput {

/// Returns when the text is where it belongs.
/// \throws kavoTaskError if not all of it can be written, to a full disk for one
void write(const QByteArray &text);

} // namespace kavoStandardOutput
