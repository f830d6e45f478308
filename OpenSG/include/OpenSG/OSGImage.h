#pragma once

#include <OpenSG/OSGImageBase.h>

OSG_BEGIN_NAMESPACE

/// Pixels in memory. The order is: rows from bottom to top, depth, mipmaps from large to small,
/// sides, frames. Formats and data types are OpenGL constants.
class Image : public ImageBase
{
    typedef ImageBase Inherited;

public:
    enum PixelFormat {
        OSG_INVALID_PF = 0,
        OSG_A_PF = 6406,
        OSG_RGB_PF = 6407,
        OSG_RGBA_PF = 6408,
        OSG_L_PF = 6409,
        OSG_LA_PF = 6410,
        OSG_I_PF = 32841,
        OSG_BGR_PF = 32992,
        OSG_BGRA_PF = 32993
    };
    enum Type {
        OSG_INVALID_IMAGEDATA = 0,
        OSG_UINT8_IMAGEDATA = 5121,
        OSG_INT16_IMAGEDATA = 5122,
        OSG_UINT16_IMAGEDATA = 5123,
        OSG_INT32_IMAGEDATA = 5124,
        OSG_UINT32_IMAGEDATA = 5125,
        OSG_FLOAT32_IMAGEDATA = 5126,
        OSG_FLOAT16_IMAGEDATA = 5131
    };

    /// Sets format, sizes and pixels. The caller has to begin and end the edit. The pixels are
    /// copied from `data`. Without `data` they are zeros. Without `allocMem` there are no pixels.
    /// Returns false and changes nothing for an unknown format or type, for sizes and counts below
    /// 1, for more than 31 mipmaps and for more than 2^31 - 1 bytes.
    bool set(UInt32 pixelFormat, Int32 width, Int32 height = 1, Int32 depth = 1,
        Int32 mipmapCount = 1, Int32 frameCount = 1, Time frameDelay = 0.0,
        const UInt8 *data = nullptr, Int32 type = OSG_UINT8_IMAGEDATA, bool allocMem = true,
        Int32 sideCount = 1);
    /// Reads or writes a binary PNM file (P5 or P6) of bytes, the only known format. Returns false,
    /// with a warning, if that fails. The caller of read() has to begin and end the edit.
    bool read(const Char8 *fileName);
    bool write(const Char8 *fileName);

    /// Returns the first byte of an image, or NULL if there are no pixels.
    UInt8 *getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0);
    bool isValid() const { return !_mfPixel.empty(); }
    bool hasAlphaChannel() const;
    /// Returns the size of all pixels in bytes.
    UInt32 getSize() const { return _mfPixel.size(); }

    /// Computes the bytes per component, pixel, side and frame from the other fields.
    void changed(BitVector whichField, UInt32 origin) override;

private:
    void fillPixels(UInt32 size, const UInt8 *data);
    void deriveSizes();
    double mipmapOffset(UInt32 mipmap) const;

protected:
    friend class FieldContainer;

    Image() = default;
    Image(const Image &) = default;
    ~Image() override = default;
};

OSG_END_NAMESPACE
