#pragma once

#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>
#include <memory>

struct aiScene;
namespace Assimp {
class Importer;
}

/// A parsed scene file: Assimp's scene, and the images that its materials use. The worker thread
/// creates it and passes it to the GUI thread.
struct kavoParsedFile
{
    QString fileName;
    std::shared_ptr<Assimp::Importer> importer; ///< owns `scene`
    const aiScene *scene = nullptr;
    QHash<QString, QImage> textures; ///< the key is the path in the material
    QStringList warnings; ///< what is missing in the scene, one line each
};
