#pragma once

#include "Files/kavoCameraAttachment.h"

#include <kavoNodePtr.h>

#include <QString>

/// Reads OpenSG's ASCII files, also those of other programs. GUI thread.
namespace kavoOsgReader {

struct Scene
{
    kavoNodePtr root;
    kavoCameraAttachment::List cameras;
    bool isWhole = false; ///< false if a part of the file could not be read
};

bool canRead(const QString &file);

/// Reads the scene without changes. It gets a new root only if the file has several. The log names
/// everything that could not be read.
/// \throws kavoTaskError if there is no scene
Scene read(const QString &file);

} // namespace kavoOsgReader
