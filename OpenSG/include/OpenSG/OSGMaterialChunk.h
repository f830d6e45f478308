#pragma once

#include <OpenSG/OSGMaterialChunkBase.h>

OSG_BEGIN_NAMESPACE

/// Colours and shininess of the front, and of the back if it differs.
class MaterialChunk : public MaterialChunkBase
{
    typedef MaterialChunkBase Inherited;

public:
    /// True if the alpha of the diffuse colour is below 1.
    bool isTransparent() const override { return getDiffuse().alpha() < 1.f; }

protected:
    friend class FieldContainer;

    MaterialChunk() = default;
    MaterialChunk(const MaterialChunk &) = default;
    ~MaterialChunk() override = default;
};

OSG_END_NAMESPACE
