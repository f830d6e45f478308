#pragma once

#include <OpenSG/OSGBlendChunkBase.h>

OSG_BEGIN_NAMESPACE

/// Blending of new colours with the colours in the frame buffer, and the alpha test.
class BlendChunk : public BlendChunkBase
{
    typedef BlendChunkBase Inherited;

public:
    /// True unless the destination factor is GL_ZERO.
    bool isTransparent() const override { return getDestFactor() != 0; }

protected:
    friend class FieldContainer;

    BlendChunk() = default;
    BlendChunk(const BlendChunk &) = default;
    ~BlendChunk() override = default;
};

OSG_END_NAMESPACE
