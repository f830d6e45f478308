#include "kavoWindowPrinter.h"

#include <qttreepropertybrowser.h>

#include <QAbstractItemView>
#include <QTextStream>

kavoWindowPrinter::kavoWindowPrinter(QTextStream &out)
    : m_out(out)
{
}

bool kavoWindowPrinter::print(QWidget *window)
{
    if (const auto *browser = window->findChild<QtAbstractPropertyBrowser *>()) {
        for (const QtBrowserItem *item : browser->topLevelItems())
            printItem(item, 0);
        return true;
    }
    for (const auto *view : window->findChildren<QAbstractItemView *>()) {
        // Lists that pop up from a combo box are windows of their own.
        if (!view->model() || !window->isAncestorOf(view))
            continue;
        printChildren(view->model(), view->rootIndex(), 0);
        return true;
    }
    return false;
}

// A value of several lines stays on one.
void kavoWindowPrinter::row(int level, const QString &name, const QString &value)
{
    const QString line = QString(2 * level, ' ') + name + '\t' + value;
    m_out << QString(line).replace('\n', QLatin1String("\\n")) << '\n';
}

void kavoWindowPrinter::printItem(const QtBrowserItem *item, int level)
{
    row(level, item->property()->propertyName(), item->property()->valueText());
    for (const QtBrowserItem *child : item->children())
        printItem(child, level + 1);
}

void kavoWindowPrinter::printChildren(
    QAbstractItemModel *model, const QModelIndex &parent, int level)
{
    while (model->canFetchMore(parent))
        model->fetchMore(parent);
    for (int i = 0; i < model->rowCount(parent); ++i) {
        QStringList values;
        for (int column = 1; column < model->columnCount(parent); ++column)
            values << model->index(i, column, parent).data().toString();
        const QModelIndex name = model->index(i, 0, parent);
        row(level, name.data().toString(), values.join('\t'));
        printChildren(model, name, level + 1);
    }
}
