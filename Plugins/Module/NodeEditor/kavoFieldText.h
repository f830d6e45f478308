#pragma once

#include <OpenSG/OSGField.h>

#include <QString>

/// Text of fields: what their rows show and what edits write.
namespace kavoFieldText {

/// Lists of numbers and nodes with more elements are summarised.
constexpr osg::UInt32 maxListedElements = 99;

bool isSingle(const osg::Field &field);

/// Returns the text that a row shows for a field without pointers: the value, or a summary of a
/// list that is too long or cannot be edited.
QString valueOf(const osg::Field &field);
/// Returns the text that a row shows for a list of pointers, which is its size.
QString sizeOf(const osg::Field &field);
/// Returns the numbers of real lists, vectors and points with up to 6 digits, separated by ", ".
/// Returns the text of other types unchanged.
QString beautified(const QString &typeName, const QString &text);

/// Writes the text of an edited row into the field. Replaces lists of numbers as a whole. Ignores
/// summaries and other lists.
/// \returns whether the field was written
bool write(osg::Field &field, const QString &text);

} // namespace kavoFieldText
