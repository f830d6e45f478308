#include <OpenSG/OSGImage.h>

#include <algorithm>
#include <iterator>
#include <limits>

OSG_BEGIN_NAMESPACE

namespace {

struct FormatInfo
{
    UInt32 format;
    Int32 channels;
    bool hasAlpha;
};

constexpr FormatInfo formats[] = {
    { Image::OSG_A_PF, 1, true },
    { Image::OSG_I_PF, 1, false },
    { Image::OSG_L_PF, 1, false },
    { Image::OSG_LA_PF, 2, true },
    { Image::OSG_RGB_PF, 3, false },
    { Image::OSG_RGBA_PF, 4, true },
    { Image::OSG_BGR_PF, 3, false },
    { Image::OSG_BGRA_PF, 4, true },
};

struct TypeInfo
{
    Int32 type;
    Int32 size;
};

constexpr TypeInfo types[] = {
    { Image::OSG_UINT8_IMAGEDATA, 1 },
    { Image::OSG_INT16_IMAGEDATA, 2 },
    { Image::OSG_UINT16_IMAGEDATA, 2 },
    { Image::OSG_INT32_IMAGEDATA, 4 },
    { Image::OSG_UINT32_IMAGEDATA, 4 },
    { Image::OSG_FLOAT32_IMAGEDATA, 4 },
    { Image::OSG_FLOAT16_IMAGEDATA, 2 },
};

const FormatInfo *findFormat(UInt32 format)
{
    const auto found = std::find_if(std::begin(formats), std::end(formats),
        [=](const FormatInfo &info) { return info.format == format; });
    return found != std::end(formats) ? found : nullptr;
}

const TypeInfo *findType(Int32 type)
{
    const auto found = std::find_if(std::begin(types), std::end(types),
        [=](const TypeInfo &info) { return info.type == type; });
    return found != std::end(types) ? found : nullptr;
}

// An image of the largest size has this many mipmaps.
constexpr UInt32 maxMipMaps = 31;

constexpr double maxSize = std::numeric_limits<Int32>::max();

// Each mipmap has half the size of the previous one in each direction, but at least 1.
double halved(Int32 size, UInt32 level)
{
    return std::max(size >> level, 1);
}

// The result is real, because the product of three sizes may overflow integers. It is 0 unless all
// sizes are positive.
double pixelsOfMipMaps(Int32 width, Int32 height, Int32 depth, UInt32 count)
{
    if (std::min({ width, height, depth }) < 1) {
        return 0;
    }
    double pixels = 0;
    for (UInt32 level = 0; level < std::min(count, maxMipMaps); ++level) {
        pixels += halved(width, level) * halved(height, level) * halved(depth, level);
    }
    return pixels;
}

Int32 dimensionOf(Int32 width, Int32 height, Int32 depth)
{
    return depth > 1 ? 3 : height > 1 ? 2 : width > 1 ? 1 : 0;
}

} // namespace

bool Image::set(UInt32 pixelFormat, Int32 width, Int32 height, Int32 depth, Int32 mipmapCount,
    Int32 frameCount, Time frameDelay, const UInt8 *data, Int32 type, bool allocMem,
    Int32 sideCount)
{
    const FormatInfo *format = findFormat(pixelFormat);
    const TypeInfo *component = findType(type);
    const Int32 least = std::min({ width, height, depth, mipmapCount, frameCount, sideCount });
    if (!format || !component || least < 1 || UInt32(mipmapCount) > maxMipMaps) {
        return false;
    }
    const double pixels = pixelsOfMipMaps(width, height, depth, mipmapCount);
    if (pixels * format->channels * component->size * sideCount * frameCount > maxSize) {
        return false;
    }
    setPixelFormat(pixelFormat);
    setDataType(type);
    setDimension(dimensionOf(width, height, depth));
    setWidth(width);
    setHeight(height);
    setDepth(depth);
    setMipMapCount(mipmapCount);
    setSideCount(sideCount);
    setFrameCount(frameCount);
    setFrameDelay(frameDelay);
    deriveSizes();
    fillPixels(allocMem ? getFrameSize() * frameCount : 0, data);
    return true;
}

void Image::fillPixels(UInt32 size, const UInt8 *data)
{
    auto &pixels = _mfPixel.getValues();
    if (data) {
        pixels.assign(data, data + size);
    } else {
        pixels.assign(size, 0);
    }
}

void Image::changed(BitVector whichField, UInt32 origin)
{
    constexpr BitVector sources = WidthFieldMask | HeightFieldMask | DepthFieldMask
        | MipMapCountFieldMask | SideCountFieldMask | PixelFormatFieldMask | DataTypeFieldMask
        | BppFieldMask;
    if (whichField & sources) {
        deriveSizes();
    }
    Inherited::changed(whichField, origin);
}

// For an unknown format the bytes per pixel stay as they were set. If the size is impossible, the
// derived sizes are 0.
void Image::deriveSizes()
{
    const FormatInfo *format = findFormat(getPixelFormat());
    if (const TypeInfo *component = findType(getDataType())) {
        setComponentSize(component->size);
        setBpp(format ? format->channels * component->size : getBpp());
    }
    const double side = mipmapOffset(std::max(getMipMapCount(), 1));
    const double frame = side * std::max(getSideCount(), 1);
    const bool isPossible = side >= 0 && frame <= maxSize;
    setSideSize(isPossible ? static_cast<Int32>(side) : 0);
    setFrameSize(isPossible ? static_cast<Int32>(frame) : 0);
}

UInt8 *Image::getData(UInt32 mipmap, UInt32 frame, UInt32 side)
{
    const double offset
        = double(frame) * getFrameSize() + double(side) * getSideSize() + mipmapOffset(mipmap);
    const bool isInside = offset >= 0 && offset < _mfPixel.size();
    return isInside ? &_mfPixel[static_cast<UInt32>(offset)] : nullptr;
}

bool Image::hasAlphaChannel() const
{
    const FormatInfo *format = findFormat(getPixelFormat());
    return format && format->hasAlpha;
}

// The offset of a mipmap in its side, in bytes.
double Image::mipmapOffset(UInt32 mipmap) const
{
    return pixelsOfMipMaps(getWidth(), getHeight(), getDepth(), mipmap) * getBpp();
}

OSG_END_NAMESPACE
