#include "Scene/kavoImageConverter.h"

namespace {

/// Qt's name for the pixel format, Format_Invalid if Qt has none.
QImage::Format format(osg::UInt32 pixelFormat)
{
    switch (pixelFormat) {
    case osg::Image::OSG_L_PF:
        return QImage::Format_Grayscale8;
    case osg::Image::OSG_RGB_PF:
        return QImage::Format_RGB888;
    case osg::Image::OSG_RGBA_PF:
        return QImage::Format_RGBA8888;
    default:
        return QImage::Format_Invalid;
    }
}

} // namespace

QImage kavoImageConverter::toImage(const osg::ImagePtr &image)
{
    if (image == osg::NullFC || image->getDataType() != osg::Image::OSG_UINT8_IMAGEDATA)
        return QImage();
    const QImage::Format pixels = format(image->getPixelFormat());
    const qint64 width = image->getWidth(), height = image->getHeight();
    const qint64 rowBytes = width * QImage::toPixelFormat(pixels).bitsPerPixel() / 8;
    if (rowBytes <= 0 || height <= 0 || qint64(image->getMFPixel()->getSize()) / height < rowBytes)
        return QImage();
    return QImage(image->getData(), int(width), int(height), int(rowBytes), pixels).mirrored();
}
