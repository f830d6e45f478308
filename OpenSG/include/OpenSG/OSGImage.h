#pragma once

#include <OpenSG/OSGImageBase.h>

OSG_BEGIN_NAMESPACE

/// Pixels in memory: rows from bottom to top, images behind each other in depth, mipmaps from
/// large to small, then sides, then frames. Formats and data types are numbers of OpenGL.
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

    /// Becomes an image of the given kind; announces no edit. The pixels are copied from `data`;
    /// without data they are zeros, and without `allocMem` there are none. False, and nothing
    /// changes, for an unknown format or type, for sizes and counts below 1, for more than 31
    /// mipmaps and for more than 2^31 - 1 bytes.
    bool set(UInt32 pixelFormat, Int32 width, Int32 height = 1, Int32 depth = 1,
        Int32 mipmapCount = 1, Int32 frameCount = 1, Time frameDelay = 0.0,
        const UInt8 *data = nullptr, Int32 type = OSG_UINT8_IMAGEDATA, bool allocMem = true,
        Int32 sideCount = 1);
    /// Reads or writes a binary PNM file (P5 or P6) of bytes, the only format that is known here;
    /// no other image is written. False, and a warning, if that fails. Reading announces no edit.
    bool read(const Char8 *fileName);
    bool write(const Char8 *fileName);

    /// The first byte of an image; NULL if there are no pixels.
    UInt8 *getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0);
    bool isValid() const { return !_mfPixel.empty(); }
    bool hasAlphaChannel() const;
    /// Bytes of all pixels.
    UInt32 getSize() const { return _mfPixel.size(); }

    /// Bytes per component, pixel, side and frame follow from the other fields.
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
