#pragma once

#include <OpenSG/OSGImage.h>

#include <QImage>

/// Converts OpenSG images to Qt images.
namespace kavoImageConverter {

/// The first frame of the image, top row first. Null if the image is null or empty, or if its
/// channels are not bytes.
QImage toImage(const osg::ImagePtr &image);

} // namespace kavoImageConverter
