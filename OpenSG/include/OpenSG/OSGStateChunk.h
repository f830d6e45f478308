#pragma once

#include <OpenSG/OSGStateChunkBase.h>

OSG_BEGIN_NAMESPACE

/// Part of the render state. A chunk that is ignored has no effect.
class StateChunk : public StateChunkBase
{
    typedef StateChunkBase Inherited;

public:
    /// Whether what is drawn with the chunk lets show what lies behind.
    virtual bool isTransparent() const { return false; }

protected:
    friend class FieldContainer;

    StateChunk() = default;
    StateChunk(const StateChunk &) = default;
    ~StateChunk() override = default;

    /// A number that no other object of OpenGL has, from 1.
    static UInt32 newGLId();
};

OSG_END_NAMESPACE
