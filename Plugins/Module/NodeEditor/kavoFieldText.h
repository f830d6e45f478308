#pragma once

#include <OpenSG/OSGField.h>

#include <QString>

/// The text of fields: what their rows show and what an edit writes.
namespace kavoFieldText {

/// Longer lists of numbers and nodes are summarised.
constexpr osg::UInt32 maxListedElements = 99;

bool isSingle(const osg::Field &field);

/// Returns the text that a row shows for a field that is not a pointer: the value, or a summary for
/// lists that are too long and for lists whose elements cannot be edited.
QString valueOf(const osg::Field &field);
/// Returns the text that a row shows for a list of pointers: its size.
QString sizeOf(const osg::Field &field);
/// Returns the numbers of real lists, vectors and points with up to 6 digits, separated by ", ".
/// Returns the text of other types unchanged.
QString beautified(const QString &typeName, const QString &text);

/// Writes the text of an edited row into the field. Of lists only those of numbers can be written.
/// They are replaced as a whole, unless the text is a summary.
/// \returns whether the field was written
bool write(osg::Field &field, const QString &text);

} // namespace kavoFieldText
