#pragma once

#include <OpenSG/OSGTextureChunkBase.h>

OSG_BEGIN_NAMESPACE

/// A texture: an image, with its filters, its wrap mode and its blending with the surface.
class TextureChunk : public TextureChunkBase
{
    typedef TextureChunkBase Inherited;

public:
    /// The chunk holds a reference. Deliberate: the argument must be a variable, although it is not
    /// changed.
    void setImage(ImagePtr &image);

    /// True if the image has an alpha channel.
    bool isTransparent() const override;

    /// Marks a part of the image as changed. -1 is the end of the image. The function begins and
    /// ends the edit of the fields for this.
    void imageContentChanged(Int32 minX = -1, Int32 maxX = -1, Int32 minY = -1, Int32 maxY = -1,
        Int32 minZ = -1, Int32 maxZ = -1);

protected:
    friend class FieldContainer;

    TextureChunk() = default;
    TextureChunk(const TextureChunk &) = default;
    ~TextureChunk() override = default;
};

OSG_END_NAMESPACE
