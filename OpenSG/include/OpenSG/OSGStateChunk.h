#pragma once

#include <OpenSG/OSGStateChunkBase.h>

OSG_BEGIN_NAMESPACE

/// A part of the render state. A chunk with the field `ignore` set has no effect.
class StateChunk : public StateChunkBase
{
    typedef StateChunkBase Inherited;

public:
    /// Returns true if the chunk makes surfaces transparent.
    virtual bool isTransparent() const { return false; }

protected:
    friend class FieldContainer;

    StateChunk() = default;
    StateChunk(const StateChunk &) = default;
    ~StateChunk() override = default;

    /// Returns a number that no other OpenGL object has. Numbers start at 1.
    static UInt32 newGLId();
};

OSG_END_NAMESPACE
