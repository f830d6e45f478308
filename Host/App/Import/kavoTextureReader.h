#pragma once

#include <QDir>
#include <QImage>
#include <QString>

struct aiScene;

/// Reads the images that a file's materials use: images embedded in the file, and files next to it.
/// The paths are often absolute paths on another machine, so the file name alone is tried as well.
/// Any thread.
class kavoTextureReader
{
public:
    kavoTextureReader(const aiScene &scene, const QString &sceneFile);

    /// The image. Null if it is missing or cannot be decoded.
    QImage read(const QString &path) const;

private:
    QImage readEmbedded(const QString &path) const;
    QImage readFile(const QString &path) const;

    const aiScene &m_scene;
    QDir m_folder;
};
