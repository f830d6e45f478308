#include <OpenSG/OSGTextureChunk.h>

OSG_BEGIN_NAMESPACE

void TextureChunk::setImage(ImagePtr &image)
{
    _sfImage.setValue(image);
    _heldImage = image;
}

bool TextureChunk::isTransparent() const
{
    return getImage() && getImage()->hasAlphaChannel();
}

void TextureChunk::imageContentChanged(
    Int32 minX, Int32 maxX, Int32 minY, Int32 maxY, Int32 minZ, Int32 maxZ)
{
    constexpr BitVector dirtyFields = DirtyMinXFieldMask | DirtyMaxXFieldMask | DirtyMinYFieldMask
        | DirtyMaxYFieldMask | DirtyMinZFieldMask | DirtyMaxZFieldMask;
    const TextureChunkPtr self(this);
    beginEditCP(self, dirtyFields);
    setDirtyMinX(minX);
    setDirtyMaxX(maxX);
    setDirtyMinY(minY);
    setDirtyMaxY(maxY);
    setDirtyMinZ(minZ);
    setDirtyMaxZ(maxZ);
    endEditCP(self, dirtyFields);
}

OSG_END_NAMESPACE
