#pragma once

#include <OpenSG/OSGSimpleTexturedMaterialBase.h>
#include <OpenSG/OSGTexGenChunk.h>
#include <OpenSG/OSGTextureChunk.h>

OSG_BEGIN_NAMESPACE

/// A simple material with one texture, which mirrors its surroundings if `envMap` is set. The
/// chunks of the texture are its own, too.
class SimpleTexturedMaterial : public SimpleTexturedMaterialBase
{
    typedef SimpleTexturedMaterialBase Inherited;

protected:
    friend class FieldContainer;

    SimpleTexturedMaterial() = default;
    /// The copy makes chunks of its own.
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
