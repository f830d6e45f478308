#include "Views/kavoListView.h"

#include "Views/kavoListModel.h"

#include <QHeaderView>

namespace {

constexpr int typeColumnWidth = 110, idColumnWidth = 50; // pixels, until the user decides

} // namespace

kavoListView::kavoListView(
    const kavoListDescription &description, kavoOpenScene &scene, QWidget *parent)
    : QTreeView(parent)
{
    auto *model = new kavoListModel(description, scene, this);
    setModel(model);
    setAccessibleName(description.title);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setRootIsDecorated(description.hasMaterialRows);
    setExpandsOnDoubleClick(false);
    if (description.hasMaterialRows)
        setIconSize({ kavoSwatchCache::size, kavoSwatchCache::size });
    setUpColumns();
    connect(model, &QAbstractItemModel::modelReset, this, &QTreeView::expandAll);
    connect(this, &QAbstractItemView::activated, model, &kavoListModel::activate);
    connect(this, &QAbstractItemView::activated, this, &kavoListView::rowActivated);
    expandAll();
}

void kavoListView::setUpColumns()
{
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(kavoListModel::NameColumn, QHeaderView::Stretch);
    header()->resizeSection(kavoListModel::TypeColumn, typeColumnWidth);
    header()->resizeSection(kavoListModel::IdColumn, idColumnWidth);
}
