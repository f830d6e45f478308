#include "Files/kavoOsgReader.h"

#include "Basics/kavoTaskError.h"
#include "Files/kavoLibraryLog.h"
#include "Files/kavoOsgWriter.h"

#include <OpenSG/OSGSceneFileHandler.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace {

// A folder can be opened, too.
QString reasonOfFailure(const QString &fileName)
{
    QFile file(fileName);
    if (QFileInfo(file).isDir())
        return qt_error_string(EISDIR);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    return QCoreApplication::translate("kavoOsgReader", "the file holds no scene");
}

// The library puts scenes into a new group. With several scenes, that group stays.
kavoNodePtr withoutNewRoot(const kavoNodePtr &root, const QString &fileName)
{
    if (root->getNChildren() == 1) {
        const kavoNodePtr scene(root->getChild(0));
        root->subChild(0u);
        return scene;
    }
    osg::setName(osg::NodePtr(root), QFileInfo(fileName).fileName().toStdString());
    return root;
}

} // namespace

bool kavoOsgReader::canRead(const QString &file)
{
    return kavoOsgWriter::canSave(file);
}

kavoOsgReader::Scene kavoOsgReader::read(const QString &file)
{
    const kavoLibraryLog log;
    const QByteArray path = QFile::encodeName(file);
    kavoOsgWriter::useFaithfulFormat();
    const kavoNodePtr root(osg::SceneFileHandler::the().read(path.constData(), nullptr));
    if (root == osg::NullFC)
        throw kavoTaskError(reasonOfFailure(file));
    Scene scene;
    scene.isWhole = !log.hasComplaints();
    scene.root = withoutNewRoot(root, file);
    scene.cameras = kavoCameraAttachment::take(osg::NodePtr(scene.root));
    scene.root->updateVolume();
    return scene;
}
