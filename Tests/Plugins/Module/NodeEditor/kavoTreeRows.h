#pragma once

#include <kavoFCEditorWidget.h>

#include <QMetaType>

Q_DECLARE_METATYPE(QtProperty *)

/// Access to the rows of a property tree.
namespace kavoTreeRows {

/// Returns the title of a container's group.
QString titleOf(const char *name, const osg::FieldContainerPtr &container);
/// Returns null for an empty tree.
QtProperty *top(const kavoFCEditorWidget &editor);
/// Returns the row with that title directly below the group, null if there is none.
QtProperty *child(const QtProperty *group, const QString &title);
/// Returns the row with that title directly below the top row, null if there is none.
QtProperty *row(const kavoFCEditorWidget &editor, const QString &title);
/// Returns the titles of the rows directly below the group.
QStringList titles(const QtProperty *group);
/// Returns the value text of a row below the top row, "(no row)" if there is none.
QString text(const kavoFCEditorWidget &editor, const QString &title);
bool isOpen(const kavoFCEditorWidget &editor, QtProperty *property);
/// Returns all rows in the order of the screen, including those in closed groups.
QList<QtProperty *> all(const kavoFCEditorWidget &editor);
/// Sets the value of a row below the top row, as its editor does.
void setValue(const kavoFCEditorWidget &editor, const QString &title, const QVariant &value);
/// Opens the editor of a row with the keyboard.
/// \returns the editor, null if none opened
QWidget *edit(kavoFCEditorWidget &editor, const QString &title);

} // namespace kavoTreeRows
