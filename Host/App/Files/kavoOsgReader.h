#pragma once

#include "Files/kavoCameraAttachment.h"

#include <kavoNodePtr.h>

#include <QString>

/// Reads what kavoOsgWriter saved, and OpenSG's ASCII files of other programs. GUI thread.
namespace kavoOsgReader {

struct Scene
{
    kavoNodePtr root;
    kavoCameraAttachment::List cameras;
    bool isWhole = false; ///< all that is in the file was understood
};

bool canRead(const QString &file);

/// The scene as it is in the file, nothing in it optimised; a root is added only if the file
/// has several. What the file has that cannot be read is in the log.
/// \throws kavoTaskError if there is no scene
Scene read(const QString &file);

} // namespace kavoOsgReader
