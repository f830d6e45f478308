#pragma once

#include "Files/kavoCameraAttachment.h"

#include <kavoNodePtr.h>

#include <QCoreApplication>
#include <QString>

/// Reads what kavoOsgWriter saved, and OpenSG's ASCII files of other programs. GUI thread.
class kavoOsgReader
{
    Q_DECLARE_TR_FUNCTIONS(kavoOsgReader)

public:
    struct Scene
    {
        kavoNodePtr root;
        kavoCameraAttachment::List cameras;
        bool isWhole = false; ///< all that is in the file was understood
    };

    static bool canRead(const QString &file);

    /// The scene as it is in the file, nothing in it optimised; a root is added only if the file
    /// has several. What the file has that cannot be read is in the log.
    /// \throws kavoTaskError if there is no scene
    static Scene read(const QString &file);
};
