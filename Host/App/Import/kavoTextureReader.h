#pragma once

#include <QDir>
#include <QImage>
#include <QString>

struct aiScene;

/// Finds and decodes the images that a file's materials name: those embedded in the file, and
/// those beside it. Files often carry the absolute path of the machine they were made on, so the
/// bare name is looked for beside the file as well. Any thread.
class kavoTextureReader
{
public:
    kavoTextureReader(const aiScene &scene, const QString &sceneFile);

    /// The image, null if there is none of that name or it cannot be decoded.
    QImage read(const QString &path) const;

private:
    QImage readEmbedded(const QString &path) const;
    QImage readFile(const QString &path) const;

    const aiScene &m_scene;
    QDir m_folder;
};
