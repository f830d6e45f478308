#pragma once

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGImage.h>

#include <QImage>
#include <QString>

struct aiMaterial;

/// Converts a material of a file to a ChunkMaterial. GUI thread.
namespace kavoMaterialBuilder {

/// Creates the material with its name. Its reference count is 0.
/// \param texture the image of the base colour; may be null
osg::ChunkMaterialPtr build(const aiMaterial &material, osg::ImagePtr texture);

/// Creates an image with the pixels of \p source, bottom row first, and \p path as its name.
osg::ImagePtr buildImage(const QImage &source, const QString &path);

} // namespace kavoMaterialBuilder
