#pragma once

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGSimpleMaterialBase.h>

OSG_BEGIN_NAMESPACE

/// A material of colours, shininess and transparency. It makes a MaterialChunk and a BlendChunk
/// for itself with its first State; they never appear in its list of chunks.
class SimpleMaterial : public SimpleMaterialBase
{
    typedef SimpleMaterialBase Inherited;

protected:
    friend class FieldContainer;

    SimpleMaterial() = default;
    /// The copy makes chunks of its own.
    SimpleMaterial(const SimpleMaterial &source);
    ~SimpleMaterial() override = default;

    void fillState(State &state) override;
    bool hasTransparentPart() const override;

private:
    void createChunks();
    void updateMaterialChunk();

    MaterialChunkRefPtr _materialChunk;
    BlendChunkRefPtr _blendChunk;
};

OSG_END_NAMESPACE
