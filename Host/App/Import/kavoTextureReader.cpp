#include "Import/kavoTextureReader.h"

#include <QFileInfo>
#include <assimp/scene.h>

kavoTextureReader::kavoTextureReader(const aiScene &scene, const QString &sceneFile)
    : m_scene(scene)
    , m_folder(QFileInfo(sceneFile).absoluteDir())
{
}

QImage kavoTextureReader::read(const QString &path) const
{
    const QImage embedded = readEmbedded(path);
    return embedded.isNull() ? readFile(path) : embedded;
}

QImage kavoTextureReader::readEmbedded(const QString &path) const
{
    const aiTexture *texture = m_scene.GetEmbeddedTexture(path.toUtf8().constData());
    if (!texture)
        return QImage();
    const auto *bytes = reinterpret_cast<const uchar *>(texture->pcData);
    const int width = int(texture->mWidth);
    if (texture->mHeight == 0) { // an encoded image file of mWidth bytes
        return QImage::fromData(bytes, width);
    }
    return QImage(bytes, width, int(texture->mHeight), QImage::Format_ARGB32).copy();
}

QImage kavoTextureReader::readFile(const QString &path) const
{
    const QString portable = QString(path).replace('\\', '/');
    const QString candidates[] = { portable, portable.section('/', -1) };
    for (const QString &candidate : candidates) {
        const QImage image(m_folder.absoluteFilePath(candidate));
        if (!image.isNull())
            return image;
    }
    return QImage();
}
