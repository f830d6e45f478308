#include "Window/kavoSession.h"

#include "Files/kavoBackgroundLoader.h"
#include "Files/kavoDocument.h"
#include "Scene/kavoNodeFinder.h"
#include "Scene/kavoOpenScene.h"

#include <kavoController.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoScenegraph.h>

namespace {

void send(int messageId)
{
    kavoMessage message(messageId);
    kavoController::sendMessage(message);
}

void closeScene()
{
    send(kavoMessageIds::sceneCleared);
    kavoScenegraph::setRoot(osg::NullFC);
}

} // namespace

kavoSession::kavoSession(QObject *parent)
    : QObject(parent)
    , m_scene(new kavoOpenScene(this))
    , m_document(new kavoDocument(*m_scene, this))
    , m_loader(new kavoBackgroundLoader(this))
{
    connectLoader();
}

void kavoSession::connectLoader()
{
    m_loader->setConfirmation([this] {
        m_scene->drainChanges(); // the document must know the edits of this round
        return m_mayReplaceScene();
    });
    connect(m_loader, &kavoBackgroundLoader::progress, this, &kavoSession::opening);
    connect(m_loader, &kavoBackgroundLoader::loaded, this, &kavoSession::showScene);
    connect(m_loader, &kavoBackgroundLoader::canceled, m_document, &kavoDocument::keepEdits);
    connect(m_loader, &kavoBackgroundLoader::failed, m_document, &kavoDocument::keepEdits);
    connect(m_loader, &kavoBackgroundLoader::canceled, this, &kavoSession::openCanceled);
    connect(m_loader, &kavoBackgroundLoader::failed, this,
        [this](const QString &file, const QString &reason) {
            emit openFailed(tr("Cannot open '%1': %2").arg(file, reason));
        });
}

void kavoSession::setConfirmation(const std::function<bool()> &mayReplaceScene)
{
    m_mayReplaceScene = mayReplaceScene;
}

void kavoSession::open(const QStringList &files)
{
    m_loader->load(files);
    m_files = files;
    if (m_loader->isLoading())
        m_document->discardEdits();
}

void kavoSession::replace(const QStringList &files)
{
    if (m_mayReplaceScene())
        open(files);
}

void kavoSession::cancelOpening()
{
    m_loader->cancel();
}

bool kavoSession::select(const QString &nameOrId) const
{
    const osg::NodePtr node = kavoNodeFinder::find(kavoScenegraph::getRoot(), nameOrId);
    if (node == osg::NullFC)
        return false;
    kavoScenegraph::setSelectedNode(node);
    return true;
}

void kavoSession::close()
{
    m_loader->shutDown();
    closeScene();
}

void kavoSession::showScene(const osg::NodePtr &root, const QStringList &partlyRead)
{
    closeScene();
    kavoScenegraph::setRoot(root);
    send(kavoMessageIds::sceneLoaded);
    m_document->setFiles(m_files, partlyRead);
    emit opened(m_files);
}
