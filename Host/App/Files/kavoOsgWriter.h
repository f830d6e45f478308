#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QString>

/// Saves scenes with the cameras of the open scene, in OpenSG's ASCII format. GUI thread.
namespace kavoOsgWriter {

/// The suffix of scene files, without the dot.
QString suffix();
bool canSave(const QString &file);

/// Sets the options with which the library writes and reads such files without loss.
void useFaithfulFormat();

/// Replaces the file, or leaves it unchanged if an error occurs. The log names everything that the
/// format cannot store, except that numbers are rounded to seven digits. Internal attachments are
/// not saved.
/// \throws kavoTaskError
void save(const osg::NodePtr &root, const QString &file);

} // namespace kavoOsgWriter
