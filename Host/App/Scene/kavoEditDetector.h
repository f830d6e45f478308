#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

struct kavoChanges;

/// Tells edits of the open scene from other changes: updates of volumes, containers that materials
/// create for themselves, another scene that is loaded. A change of a volume is an edit only if the
/// volume is static, because any other volume is computed again.
class kavoEditDetector
{
public:
    /// Takes the open scene as the saved state.
    void reset();

    /// Whether the changes make the scene differ from the saved state.
    bool areIn(const kavoChanges &changes) const;

private:
    bool isEdit(osg::UInt32 id, osg::BitVector fields) const;
    bool isInScene(const osg::FieldContainerPtr &container) const;
    template <class Handles> bool isAnyInScene(const Handles &containers) const;

    /// Containers from this id on were created after reset(). They can join the scene only by an
    /// edit of an older container, which is found itself.
    osg::UInt32 m_firstNewId = 0;
};
