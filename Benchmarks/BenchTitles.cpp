#include "BenchTitles.h"

#include <QSignalBlocker>
#include <QTreeWidget>

void BenchTitles::build(int rows)
{
    auto &view = *findChild<QTreeWidget *>();
    {
        const QSignalBlocker silent(view.model());
        QtProperty *top = m_groups.addProperty("top");
        for (int i = 1; i < rows; ++i)
            top->addSubProperty(m_groups.addProperty("field"));
        addProperty(top);
    }
    view.doItemsLayout();
}

void BenchTitles::empty()
{
    auto &view = *findChild<QTreeWidget *>();
    setCurrentItem(nullptr);
    view.reset();
    const QSignalBlocker silent(view.model());
    QtProperty *top = properties().constFirst();
    const QList<QtProperty *> rows = top->subProperties();
    clear();
    delete top;
    qDeleteAll(rows);
}
