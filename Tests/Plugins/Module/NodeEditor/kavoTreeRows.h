#pragma once

#include <kavoFCEditorWidget.h>

#include <QMetaType>

Q_DECLARE_METATYPE(QtProperty *)

/// Reads a property tree row by row.
namespace kavoTreeRows {

/// The title of a container's group.
QString titleOf(const char *name, const osg::FieldContainerPtr &container);
/// The top row, null in an empty tree.
QtProperty *top(const kavoFCEditorWidget &editor);
/// The row of that title directly below the group, null if there is none.
QtProperty *child(const QtProperty *group, const QString &title);
/// The row of that title directly below the top row.
QtProperty *row(const kavoFCEditorWidget &editor, const QString &title);
/// The titles directly below the group.
QStringList titles(const QtProperty *group);
/// The value text of a row below the top one, "(no row)" if there is none.
QString text(const kavoFCEditorWidget &editor, const QString &title);
/// Whether the row is open in the tree.
bool isOpen(const kavoFCEditorWidget &editor, QtProperty *property);
/// All rows of the tree in the order of the screen, closed ones included.
QList<QtProperty *> all(const kavoFCEditorWidget &editor);
/// Sets the value of a row below the top one, as its editor would.
void setValue(const kavoFCEditorWidget &editor, const QString &title, const QVariant &value);
/// Opens the editor of a row by keyboard. \returns it, null if none opened
QWidget *edit(kavoFCEditorWidget &editor, const QString &title);

} // namespace kavoTreeRows
