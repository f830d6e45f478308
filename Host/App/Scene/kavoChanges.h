#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

#include <QHash>
#include <QSet>

/// What happened to containers during one round of the event loop.
struct kavoChanges
{
    QHash<osg::UInt32, osg::BitVector>
        changed; ///< fields by container id; without destroyed containers
    /// The changed containers, the holders of changed attachments and the nodes of changed cores.
    QSet<osg::UInt32> touched;
    QSet<osg::UInt32> created;
    QSet<osg::UInt32> destroyed;

    bool isEmpty() const { return changed.isEmpty() && created.isEmpty() && destroyed.isEmpty(); }

    /// Whether one of the fields of the container changed.
    bool contains(osg::UInt32 id, osg::BitVector fields) const
    {
        return (changed.value(id, osg::FieldBits::NoField) & fields) != 0;
    }
};
