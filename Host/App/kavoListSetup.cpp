#include "kavoListSetup.h"

#include <QHeaderView>
#include <QTreeView>

void kavoListSetup::apply(QTreeView &view, QAbstractItemModel &model)
{
    view.setModel(&model);
    view.setUniformRowHeights(true);
    view.setAlternatingRowColors(true);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setDragEnabled(true);
    view.setDragDropMode(QAbstractItemView::DragOnly);
    view.header()->setStretchLastSection(false);
    view.header()->setSectionResizeMode(0, QHeaderView::Stretch);
}
