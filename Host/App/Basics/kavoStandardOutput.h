#pragma once

class QByteArray;

/// The standard output of jobs.
namespace kavoStandardOutput {

/// Writes the text and flushes the stream.
/// \throws kavoTaskError if not all of it could be written, for example to a full disk
void write(const QByteArray &text);

} // namespace kavoStandardOutput
