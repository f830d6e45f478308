#include "Files/kavoSceneLoader.h"

#include "Basics/kavoTry.h"
#include "Files/kavoSceneReader.h"
#include "Import/kavoImportedScene.h"
#include "Import/kavoSceneBuilder.h"
#include "Import/kavoSceneImporter.h"
#include "Scene/kavoSceneCameras.h"

#include <kavoLog.h>

#include <QApplication>
#include <QFileInfo>
#include <QPointer>

namespace {

constexpr int parsingShare = 70; // per cent of a load, as far as the progress shows
constexpr int retryMilliseconds = 100;

QString baseName(const QString &file)
{
    return QFileInfo(file).fileName();
}

} // namespace

kavoSceneLoader::kavoSceneLoader(QObject *parent)
    : QObject(parent)
    , m_importer(new kavoSceneImporter(this))
{
    qRegisterMetaType<osg::NodePtr>();
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryMilliseconds);
    connect(&m_retry, &QTimer::timeout, this, &kavoSceneLoader::conclude);
    connect(m_importer, &kavoSceneImporter::finished, this, &kavoSceneLoader::addFile);
    connect(m_importer, &kavoSceneImporter::failed, this, &kavoSceneLoader::fail);
    connect(m_importer, &kavoSceneImporter::progress, this, [this](int percent) {
        const int files = m_files.size();
        const int done = 100 * int(m_imported.size()) + percent;
        emit progress(parsingShare * done / (100 * files),
            tr("Reading %1").arg(baseName(m_files[int(m_imported.size())])));
    });
}

void kavoSceneLoader::load(const QStringList &files)
{
    cancel();
    for (const QString &file : files)
        (kavoSceneReader::canRead(file) ? m_sceneFiles : m_files) << file;
    if (!m_files.isEmpty())
        importNext();
    else if (!m_sceneFiles.isEmpty())
        build();
}

void kavoSceneLoader::cancel()
{
    if (!isLoading())
        return;
    m_importer->cancel();
    reset();
    emit canceled();
}

void kavoSceneLoader::shutDown()
{
    cancel();
    m_importer->wait();
}

bool kavoSceneLoader::isLoading() const
{
    return !m_files.isEmpty() || !m_sceneFiles.isEmpty();
}

void kavoSceneLoader::importNext()
{
    const QString &file = m_files[int(m_imported.size())];
    emit progress(parsingShare * int(m_imported.size()) / m_files.size(),
        tr("Reading %1").arg(baseName(file)));
    m_importer->start(file);
}

void kavoSceneLoader::addFile(const std::shared_ptr<kavoImportedScene> &file)
{
    for (const QString &warning : qAsConst(file->warnings))
        kavoLog::warning("%s: %s", qUtf8Printable(file->fileName), qUtf8Printable(warning));
    m_imported.push_back(file);
    if (int(m_imported.size()) < m_files.size())
        importNext();
    else
        build();
}

void kavoSceneLoader::build()
{
    m_builder = new kavoSceneBuilder(m_imported, this);
    connect(m_builder, &kavoSceneBuilder::finished, this, &kavoSceneLoader::conclude);
    connect(m_builder, &kavoSceneBuilder::progress, this, [this](int percent) {
        emit progress(
            parsingShare + percent * (100 - parsingShare) / 100, tr("Building the scene"));
    });
    m_builder->start();
}

void kavoSceneLoader::conclude()
{
    if (QApplication::activeModalWidget())
        return m_retry.start();
    m_cameras = m_builder->cameras();
    kavoNodePtr root = m_builder->root();
    for (const QString &file : QStringList(m_sceneFiles)) {
        if (const auto reason = kavoTry([&] { root = withSceneFile(root, file); }))
            return fail(file, *reason);
    }
    if (!mayReplaceScene())
        return;
    kavoSceneCameras::set(m_cameras);
    const QStringList partlyRead = m_partlyRead;
    reset();
    emit progress(100, QString());
    emit loaded(root, partlyRead);
}

// The confirmation may run an event loop, in which this load ends or another begins.
bool kavoSceneLoader::mayReplaceScene()
{
    const QPointer<kavoSceneBuilder> builder = m_builder;
    const bool mayReplace = m_mayReplaceScene();
    const bool isSameLoad = builder && builder == m_builder;
    if (isSameLoad && !mayReplace)
        cancel();
    return isSameLoad && mayReplace;
}

// Below what was built of other files; a scene file on its own is the scene.
kavoNodePtr kavoSceneLoader::withSceneFile(const kavoNodePtr &root, const QString &file)
{
    emit progress(parsingShare, tr("Reading %1").arg(baseName(file)));
    const kavoSceneReader::Scene scene = kavoSceneReader::read(file);
    if (!scene.isWhole)
        m_partlyRead << file;
    m_cameras.insert(m_cameras.end(), scene.cameras.begin(), scene.cameras.end());
    if (m_files.isEmpty() && m_sceneFiles.size() == 1)
        return scene.root;
    root->addChild(osg::NodePtr(scene.root));
    return root;
}

void kavoSceneLoader::fail(const QString &file, const QString &reason)
{
    reset();
    emit failed(file, reason);
}

void kavoSceneLoader::reset()
{
    m_retry.stop();
    m_files.clear();
    m_sceneFiles.clear();
    m_partlyRead.clear();
    m_cameras.clear();
    m_imported.clear();
    if (m_builder) { // perhaps in the midst of a signal
        m_builder->disconnect(this);
        m_builder->deleteLater();
        m_builder = nullptr;
    }
}
