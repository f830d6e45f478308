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

/// What a file holds once it is parsed: Assimp's own tree, and the images that its materials name.
/// Made on a worker thread, then handed over whole to the GUI thread.
struct kavoParsedFile
{
    QString fileName;
    std::shared_ptr<Assimp::Importer> importer; ///< owns `scene`
    const aiScene *scene = nullptr;
    QHash<QString, QImage> textures; ///< by the path that the materials use
    QStringList warnings; ///< one line each, what is missing in the scene
};
