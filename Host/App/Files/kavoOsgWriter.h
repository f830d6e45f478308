#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QCoreApplication>
#include <QString>

/// Saves scenes in OpenSG's ASCII format, with what is in them and the cameras of the open scene.
/// GUI thread.
class kavoOsgWriter
{
    Q_DECLARE_TR_FUNCTIONS(kavoOsgWriter)

public:
    /// The suffix of files that can be saved, without the dot.
    static QString suffix();
    static bool canSave(const QString &file);

    /// Lets the library write and read such files so that everything comes back as it was.
    static void useFaithfulFormat();

    /// The file is there as a whole or as it was before. What the format cannot express is in the
    /// log, but for what numbers have behind the seventh digit. Attachments that are internal stay
    /// out of it.
    /// \throws kavoTaskError
    static void save(const osg::NodePtr &root, const QString &file);
};
