#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <QHash>
#include <QIcon>
#include <QSet>
#include <QVector>

struct kavoChanges;

/// A picture for each material. Renders a picture when it is asked for and keeps it until something
/// changes that the material's look depends on.
class kavoSwatchCache
{
public:
    static constexpr int size = 32; ///< width and height in pixels

    /// The picture of the material with that container id.
    const QIcon &swatch(osg::UInt32 material);

    /// Drops the pictures that show what has changed. \returns the ids of their materials
    QSet<osg::UInt32> dropOutdated(const kavoChanges &changes);
    void clear() { m_swatches.clear(); }

private:
    struct Swatch
    {
        QIcon icon;
        QVector<osg::UInt32> sources; ///< ids of the containers that it shows
    };

    QHash<osg::UInt32, Swatch> m_swatches; ///< by material
};
