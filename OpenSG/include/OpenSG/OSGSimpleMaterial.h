#pragma once

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGSimpleMaterialBase.h>

OSG_BEGIN_NAMESPACE

/// A material with colours, shininess and transparency. It creates its own MaterialChunk and
/// BlendChunk with its first State. They are not in its list of chunks.
class SimpleMaterial : public SimpleMaterialBase
{
    typedef SimpleMaterialBase Inherited;

protected:
    friend class FieldContainer;

    SimpleMaterial() = default;
    /// The copy has its own chunks.
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
