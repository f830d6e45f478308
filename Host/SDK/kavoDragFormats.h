#pragma once

#include <kavoSDKExport.h>

#include <QByteArray>
#include <QVector>

/// What the host's views put on a drag. Every payload is a sequence of field-container ids, each a
/// qint32 written by a QDataStream with its default settings.
namespace kavoDragFormats {

/// Materials. Two ids an item: the node that carries the material (its core is a material group),
/// then the material.
constexpr char materials[] = "application/kavo-mattree-item";
/// Lights. Two ids an item: the light's node, then the light, which is its core.
constexpr char lights[] = "application/kavo-lighttree-items";
/// Cameras. One id an item: the camera's node.
constexpr char cameras[] = "application/kavo-camera-item";

/// The bytes to put under one of the formats, ids in the order given.
KAVO_SDK_EXPORT QByteArray payload(const QVector<qint32> &ids);

} // namespace kavoDragFormats
