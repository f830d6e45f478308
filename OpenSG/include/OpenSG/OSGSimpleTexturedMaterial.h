#pragma once

#include <OpenSG/OSGSimpleTexturedMaterialBase.h>
#include <OpenSG/OSGTexGenChunk.h>
#include <OpenSG/OSGTextureChunk.h>

OSG_BEGIN_NAMESPACE

/// A simple material with one texture. If `envMap` is true, the texture is a reflection of the
/// surroundings. The material has its own texture chunks.
class SimpleTexturedMaterial : public SimpleTexturedMaterialBase
{
    typedef SimpleTexturedMaterialBase Inherited;

protected:
    friend class FieldContainer;

    SimpleTexturedMaterial() = default;
    /// The copy has its own chunks.
    SimpleTexturedMaterial(const SimpleTexturedMaterial &source);
    ~SimpleTexturedMaterial() override = default;

    void fillState(State &state) override;
    bool hasTransparentPart() const override;

private:
    void createChunks();
    void updateTextureChunk();
    void updateTexGenChunk();

    TextureChunkRefPtr _textureChunk;
    TexGenChunkRefPtr _texGenChunk;
};

OSG_END_NAMESPACE
