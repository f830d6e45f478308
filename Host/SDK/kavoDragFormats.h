#pragma once

#include <kavoSDKExport.h>

#include <QByteArray>
#include <QVector>

/// MIME types of drags from the host's views. Each payload is a sequence of field-container ids,
/// written as qint32 by a QDataStream with default settings.
namespace kavoDragFormats {

/// Materials, two ids per item: a node whose core is a material group, and the material.
constexpr char materials[] = "application/kavo-mattree-item";
/// Lights, two ids per item: the light's node and its core.
constexpr char lights[] = "application/kavo-lighttree-items";
/// Cameras, one id per item: the camera's node.
constexpr char cameras[] = "application/kavo-camera-item";

/// Returns the payload with these ids.
KAVO_SDK_EXPORT QByteArray payload(const QVector<qint32> &ids);

} // namespace kavoDragFormats
