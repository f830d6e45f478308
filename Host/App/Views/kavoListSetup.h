#pragma once

#include <QStringList>
#include <QVariant>
#include <QVector>

class QAbstractItemModel;
class QMimeData;
class QTreeView;

/// What the windows that list parts of the scene have in common.
class kavoListSetup
{
public:
    /// Whole rows, several at once, that can be dragged away but not dropped. The columns are name,
    /// type and id; names take the room.
    static void apply(QTreeView &view, QAbstractItemModel &model);

    /// The header data of a model whose columns have these titles.
    static QVariant title(
        const QStringList &titles, int section, Qt::Orientation orientation, int role);

    /// A drag of containers in one of the formats of kavoDragFormats, owned by the caller.
    static QMimeData *drag(const char *format, const QVector<qint32> &ids);
};
