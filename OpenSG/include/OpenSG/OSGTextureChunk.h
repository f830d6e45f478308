#pragma once

#include <OpenSG/OSGTextureChunkBase.h>

OSG_BEGIN_NAMESPACE

/// A texture: an image, how it is filtered and wrapped and how it mixes with the surface.
class TextureChunk : public TextureChunkBase
{
    typedef TextureChunkBase Inherited;

public:
    /// The chunk holds a reference. Deliberate: takes the image from a variable, which it leaves as
    /// it is.
    void setImage(ImagePtr &image);

    /// True if the image has an alpha channel.
    bool isTransparent() const override;

    /// Tells which part of the image has new pixels; -1 stands for the image's end. An edit of
    /// the fields that say so is announced.
    void imageContentChanged(Int32 minX = -1, Int32 maxX = -1, Int32 minY = -1, Int32 maxY = -1,
        Int32 minZ = -1, Int32 maxZ = -1);

protected:
    friend class FieldContainer;

    TextureChunk() = default;
    TextureChunk(const TextureChunk &) = default;
    ~TextureChunk() override = default;
};

OSG_END_NAMESPACE
