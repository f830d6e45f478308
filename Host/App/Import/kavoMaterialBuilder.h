#pragma once

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGImage.h>

#include <QImage>
#include <QString>

struct aiMaterial;

/// Turns a material of a file into a ChunkMaterial with explicit chunks. GUI thread.
namespace kavoMaterialBuilder {

/// The new material, named as in the file; its reference count is 0.
/// \param texture image of the base colour, or null for none
osg::ChunkMaterialPtr build(const aiMaterial &material, osg::ImagePtr texture);

/// A new image with the pixels of \p source, bottom row first, and \p path as its name.
osg::ImagePtr buildImage(const QImage &source, const QString &path);

} // namespace kavoMaterialBuilder
