#pragma once

#include <OpenSG/OSGLog.h>

#include <string>

OSG_BEGIN_NAMESPACE

/// What reader and writer of ASCII scene files share.
namespace AsciiFormat {

/// First line of a file. Deliberate: the blank at its end belongs to it.
constexpr const Char8 *header = "#OSG V1.0 ";

/// Containers that a file has inside each other, more than which are neither written nor read. The
/// limit bounds the stack; and since lines are indented by their depth, files that need more are of
/// no use. A scene may be deeper than its file, by USE, and by names and cores that reading adds.
constexpr std::size_t maxDepth = 1000;

/// For the log: a value that the format cannot tell, or not to everybody.
inline void report(const Char8 *owner, const Char8 *fieldName, const std::string &problem)
{
    SWARNING << "Scene file, field " << fieldName << " of " << owner << ": " << problem << endLog;
}

} // namespace AsciiFormat

OSG_END_NAMESPACE
