#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// What reader and writer of ASCII scene files share.
namespace AsciiFormat {

/// First line of a file. Deliberate: the blank at its end belongs to it.
constexpr const Char8 *header = "#OSG V1.0 ";

/// Containers inside each other, more than which are neither written nor read. The limit bounds
/// the stack; and since lines are indented by their depth, files that need more are of no use.
constexpr std::size_t maxDepth = 1000;

} // namespace AsciiFormat

OSG_END_NAMESPACE
