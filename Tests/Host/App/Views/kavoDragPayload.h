#pragma once

#include <QAbstractItemView>
#include <QDataStream>
#include <QMimeData>
#include <QVector>
#include <memory>

/// Reads the data of a drag.
namespace kavoDragPayload {

/// The ids that a drag of these rows holds.
inline QVector<qint32> ids(const QAbstractItemView &view, const QModelIndexList &rows)
{
    const std::unique_ptr<QMimeData> data(view.model()->mimeData(rows));
    QDataStream stream(data->data(data->formats().value(0)));
    QVector<qint32> ids;
    while (!stream.atEnd()) {
        qint32 id = 0;
        stream >> id;
        ids << id;
    }
    return ids;
}

} // namespace kavoDragPayload
