#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

#include <QString>

#include <vector>

class QMimeData;

/// Reads the data that the host's views put on a drag (kavoDragFormats).
namespace kavoDrop {

struct Dropped
{
    QString name; ///< for the title of the top row
    osg::FieldContainerPtr container; ///< may be null
};

/// Returns whether the data holds one of the formats.
bool isAccepted(const QMimeData &data);

/// Returns the containers that a drop of the data shows one after the other: a material, a light, a
/// camera. Skips formats that are missing or whose payload is not usable.
std::vector<Dropped> containersOf(const QMimeData &data);

} // namespace kavoDrop
