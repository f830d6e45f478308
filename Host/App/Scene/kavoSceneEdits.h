#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

struct kavoChanges;

/// Tells edits of the open scene from what else happens to containers: volumes that are brought up
/// to date, containers that materials make for themselves, another scene that is being loaded.
/// A volume that was set by hand is an edit if it is static; any other holds until the next change
/// below its node.
class kavoSceneEdits
{
public:
    /// The open scene is what it shall be compared with from now on.
    void reset();

    /// Whether a saved file would hold something else afterwards.
    bool areIn(const kavoChanges &changes) const;

private:
    bool isEdit(osg::UInt32 id, osg::BitVector fields) const;
    bool isInScene(const osg::FieldContainerPtr &container) const;
    template <class Handles> bool isAnyInScene(const Handles &containers) const;

    /// Ids from here on came later. Such a container is in the scene only if one from before was
    /// edited, so it need not be looked for.
    osg::UInt32 m_firstNewId = 0;
};
