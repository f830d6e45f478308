#include "Window/kavoWindowPrinter.h"

#include <qttreepropertybrowser.h>

#include <QAbstractItemView>
#include <QTextStream>

#include <vector>

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
        // The list of a combo box is a child, but a window of its own.
        if (!view->model() || !window->isAncestorOf(view))
            continue;
        printBelow(view->model(), view->rootIndex());
        return true;
    }
    return false;
}

// Line feeds in a value become \n, so that each row is one line.
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

// Works without recursion, because a scene may be deeper than the stack.
void kavoWindowPrinter::printBelow(QAbstractItemModel *model, const QModelIndex &top)
{
    struct Place
    {
        QModelIndex parent;
        int row;
    };
    std::vector<Place> open { { top, 0 } };
    while (!open.empty()) {
        auto &[parent, next] = open.back();
        while (model->canFetchMore(parent))
            model->fetchMore(parent);
        if (next == model->rowCount(parent)) {
            open.pop_back();
            continue;
        }
        const QModelIndex name = model->index(next++, 0, parent);
        printRow(name, int(open.size()) - 1);
        open.push_back({ name, 0 });
    }
}

void kavoWindowPrinter::printRow(const QModelIndex &name, int level)
{
    QStringList values;
    for (int column = 1; column < name.model()->columnCount(name.parent()); ++column)
        values << name.sibling(name.row(), column).data().toString();
    row(level, name.data().toString(), values.join('\t'));
}
