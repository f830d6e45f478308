#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QString>

/// Saves scenes in OpenSG's ASCII format, with what is in them and the cameras of the open scene.
/// GUI thread.
namespace kavoOsgWriter {

/// The suffix of files that can be saved, without the dot.
QString suffix();
bool canSave(const QString &file);

/// Lets the library write and read such files so that everything comes back as it was.
void useFaithfulFormat();

/// The file is there as a whole or as it was before. What the format cannot express is in the
/// log, but for what numbers have behind the seventh digit. Attachments that are internal stay
/// out of it.
/// \throws kavoTaskError
void save(const osg::NodePtr &root, const QString &file);

} // namespace kavoOsgWriter
