#pragma once

#include <OpenSG/OSGLog.h>

#include <string>

OSG_BEGIN_NAMESPACE

/// Shared by the reader and the writer of ASCII scene files.
namespace AsciiFormat {

/// First line of a file. Deliberate: it ends with a blank.
constexpr const Char8 *header = "#OSG V1.0 ";

/// Deeper nested containers are neither written nor read. The limit bounds the stack, and the size
/// of files, because lines are indented by their depth. A scene may be deeper than its file by USE
/// and by the names and cores that reading adds.
constexpr std::size_t maxDepth = 1000;

/// Reports a value that the format cannot store, or that some readers of the format do not
/// understand.
inline void report(const Char8 *owner, const Char8 *fieldName, const std::string &problem)
{
    SWARNING << "Scene file, field " << fieldName << " of " << owner << ": " << problem << endLog;
}

} // namespace AsciiFormat

OSG_END_NAMESPACE
