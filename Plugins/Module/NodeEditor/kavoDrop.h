#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

#include <QString>

#include <vector>

class QMimeData;

/// Reads what the host's views put on a drag (kavoDragFormats).
namespace kavoDrop {

struct Dropped
{
    QString name; ///< to show the container under
    osg::FieldContainerPtr container; ///< null empties the editor
};

/// Returns whether the data holds one of the formats.
bool isAccepted(const QMimeData &data);

/// Returns what a drop of the data shows: a material, then a light, then a camera. Formats that are
/// missing and payloads that cannot be used add nothing.
std::vector<Dropped> containersOf(const QMimeData &data);

} // namespace kavoDrop
