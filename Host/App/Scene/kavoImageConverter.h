#pragma once

#include <OpenSG/OSGImage.h>

#include <QImage>

/// From OpenSG images to Qt's.
namespace kavoImageConverter {

/// The first picture of the image, top row first; null for a null or an empty image and for
/// one whose channels are no bytes.
QImage toImage(const osg::ImagePtr &image);

} // namespace kavoImageConverter
