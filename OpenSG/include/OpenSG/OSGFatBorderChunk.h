#pragma once

#include <OpenSG/OSGFatBorderChunkBase.h>

OSG_BEGIN_NAMESPACE

/// Widens silhouettes by moving vertices outwards, away from the line of sight. A new chunk has its
/// vertex program already.
class FatBorderChunk : public FatBorderChunkBase
{
    typedef FatBorderChunkBase Inherited;

protected:
    friend class FieldContainer;

    FatBorderChunk();
    FatBorderChunk(const FatBorderChunk &) = default;
    ~FatBorderChunk() override = default;
};

OSG_END_NAMESPACE
