#pragma once

#include <QString>

class QAbstractItemModel;
class QModelIndex;
class QTextStream;
class QWidget;
class QtBrowserItem;

/// Writes the rows of a window as text, including rows below closed branches. Each row is one line:
/// two blanks of indent per level, the name, a tab, the value text.
class kavoWindowPrinter
{
public:
    explicit kavoWindowPrinter(QTextStream &out);

    /// Prints the first property browser or item view in the window.
    /// \returns false if there is neither
    bool print(QWidget *window);

private:
    void row(int level, const QString &name, const QString &value);

    void printItem(const QtBrowserItem *item, int level);
    void printBelow(QAbstractItemModel *model, const QModelIndex &top);
    void printRow(const QModelIndex &name, int level);

    QTextStream &m_out;
};
