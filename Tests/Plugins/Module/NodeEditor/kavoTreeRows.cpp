#include "kavoTreeRows.h"

#include <QTest>
#include <QTreeWidget>

namespace kavoTreeRows {

namespace {

void collect(QtProperty *property, QList<QtProperty *> &rows)
{
    rows.append(property);
    for (QtProperty *sub : property->subProperties())
        collect(sub, rows);
}

} // namespace

QString titleOf(const char *name, const osg::FieldContainerPtr &container)
{
    return QStringLiteral("%1 %2 (%3)")
        .arg(name, container->getTypeName())
        .arg(container.getFieldContainerId());
}

QtProperty *top(const kavoFCEditorWidget &editor)
{
    return editor.properties().value(0);
}

QtProperty *child(const QtProperty *group, const QString &title)
{
    if (group) {
        for (QtProperty *property : group->subProperties()) {
            if (property->propertyName() == title)
                return property;
        }
    }
    return nullptr;
}

QtProperty *row(const kavoFCEditorWidget &editor, const QString &title)
{
    return child(top(editor), title);
}

QStringList titles(const QtProperty *group)
{
    QStringList titles;
    for (const QtProperty *property : group->subProperties())
        titles.append(property->propertyName());
    return titles;
}

QString text(const kavoFCEditorWidget &editor, const QString &title)
{
    const QtProperty *property = row(editor, title);
    return property ? property->valueText() : QStringLiteral("(no row)");
}

bool isOpen(const kavoFCEditorWidget &editor, QtProperty *property)
{
    QtBrowserItem *item = editor.items(property).value(0);
    return item && editor.isExpanded(item);
}

QList<QtProperty *> all(const kavoFCEditorWidget &editor)
{
    QList<QtProperty *> rows;
    for (QtProperty *property : editor.properties())
        collect(property, rows);
    return rows;
}

void setValue(const kavoFCEditorWidget &editor, const QString &title, const QVariant &value)
{
    dynamic_cast<QtVariantProperty &>(*row(editor, title)).setValue(value);
}

QWidget *edit(kavoFCEditorWidget &editor, const QString &title)
{
    auto *view = editor.findChild<QTreeWidget *>();
    QTreeWidgetItem *item = view->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    view->setCurrentItem(item, 1);
    QTest::keyClick(view, Qt::Key_Return);
    return view->itemWidget(item, 1);
}

} // namespace kavoTreeRows
