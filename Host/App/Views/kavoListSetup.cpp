#include "Views/kavoListSetup.h"

#include <QHeaderView>
#include <QMimeData>
#include <QTreeView>
#include <kavoDragFormats.h>

namespace {

constexpr int typeColumnWidth = 110, idColumnWidth = 50; // pixels, until the user decides

} // namespace

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
    view.header()->resizeSection(1, typeColumnWidth);
    view.header()->resizeSection(2, idColumnWidth);
}

QVariant kavoListSetup::title(
    const QStringList &titles, int section, Qt::Orientation orientation, int role)
{
    const bool isShown = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isShown ? titles.value(section) : QVariant();
}

QMimeData *kavoListSetup::drag(const char *format, const QVector<qint32> &ids)
{
    auto *data = new QMimeData;
    data->setData(format, kavoDragFormats::payload(ids));
    return data;
}
