#include <kavoDragFormats.h>

#include <QDataStream>

QByteArray kavoDragFormats::payload(const QVector<qint32> &ids)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const qint32 id : ids)
        stream << id;
    return bytes;
}
