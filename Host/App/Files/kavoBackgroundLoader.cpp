#include "Files/kavoBackgroundLoader.h"

#include "Basics/kavoTry.h"
#include "Files/kavoOsgReader.h"
#include "Import/kavoAssimpParser.h"
#include "Import/kavoIncrementalBuilder.h"
#include "Import/kavoParsedFile.h"
#include "Scene/kavoCameraRegistry.h"

#include <kavoLog.h>

#include <QApplication>
#include <QFileInfo>
#include <QPointer>

namespace {

constexpr int parsingShare = 70; // percentage of the progress
constexpr int retryMilliseconds = 100;

QString baseName(const QString &file)
{
    return QFileInfo(file).fileName();
}

} // namespace

kavoBackgroundLoader::kavoBackgroundLoader(QObject *parent)
    : QObject(parent)
    , m_parser(new kavoAssimpParser(this))
{
    qRegisterMetaType<osg::NodePtr>();
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryMilliseconds);
    connect(&m_retry, &QTimer::timeout, this, &kavoBackgroundLoader::conclude);
    connect(m_parser, &kavoAssimpParser::finished, this, &kavoBackgroundLoader::addFile);
    connect(m_parser, &kavoAssimpParser::failed, this, &kavoBackgroundLoader::fail);
    connect(m_parser, &kavoAssimpParser::progress, this, [this](int percent) {
        const int files = m_files.size();
        const int done = 100 * int(m_parsed.size()) + percent;
        emit progress(parsingShare * done / (100 * files),
            tr("Reading %1").arg(baseName(m_files[int(m_parsed.size())])));
    });
}

void kavoBackgroundLoader::load(const QStringList &files)
{
    cancel();
    for (const QString &file : files)
        (kavoOsgReader::canRead(file) ? m_sceneFiles : m_files) << file;
    if (!m_files.isEmpty())
        parseNext();
    else if (!m_sceneFiles.isEmpty())
        build();
}

void kavoBackgroundLoader::cancel()
{
    if (!isLoading())
        return;
    m_parser->cancel();
    reset();
    emit canceled();
}

void kavoBackgroundLoader::shutDown()
{
    cancel();
    m_parser->wait();
}

bool kavoBackgroundLoader::isLoading() const
{
    return !m_files.isEmpty() || !m_sceneFiles.isEmpty();
}

void kavoBackgroundLoader::parseNext()
{
    const QString &file = m_files[int(m_parsed.size())];
    emit progress(
        parsingShare * int(m_parsed.size()) / m_files.size(), tr("Reading %1").arg(baseName(file)));
    m_parser->start(file);
}

void kavoBackgroundLoader::addFile(const std::shared_ptr<kavoParsedFile> &file)
{
    for (const QString &warning : qAsConst(file->warnings))
        kavoLog::warning("%s: %s", qUtf8Printable(file->fileName), qUtf8Printable(warning));
    m_parsed.push_back(file);
    if (int(m_parsed.size()) < m_files.size())
        parseNext();
    else
        build();
}

void kavoBackgroundLoader::build()
{
    m_builder = new kavoIncrementalBuilder(m_parsed, this);
    connect(m_builder, &kavoIncrementalBuilder::finished, this, &kavoBackgroundLoader::conclude);
    connect(m_builder, &kavoIncrementalBuilder::progress, this, [this](int percent) {
        emit progress(
            parsingShare + percent * (100 - parsingShare) / 100, tr("Building the scene"));
    });
    m_builder->start();
}

void kavoBackgroundLoader::conclude()
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
    kavoCameraRegistry::set(m_cameras);
    const QStringList partlyRead = m_partlyRead;
    reset();
    emit progress(100, QString());
    emit loaded(root, partlyRead);
}

// The confirmation may run an event loop. Meanwhile this load may end or another one start.
bool kavoBackgroundLoader::mayReplaceScene()
{
    const QPointer<kavoIncrementalBuilder> builder = m_builder;
    const bool mayReplace = m_mayReplaceScene();
    const bool isSameLoad = builder && builder == m_builder;
    if (isSameLoad && !mayReplace)
        cancel();
    return isSameLoad && mayReplace;
}

// Adds the scene to the root. If it is the only file, its root is the scene.
kavoNodePtr kavoBackgroundLoader::withSceneFile(const kavoNodePtr &root, const QString &file)
{
    emit progress(parsingShare, tr("Reading %1").arg(baseName(file)));
    const kavoOsgReader::Scene scene = kavoOsgReader::read(file);
    if (!scene.isWhole)
        m_partlyRead << file;
    m_cameras.insert(m_cameras.end(), scene.cameras.begin(), scene.cameras.end());
    if (m_files.isEmpty() && m_sceneFiles.size() == 1)
        return scene.root;
    root->addChild(osg::NodePtr(scene.root));
    return root;
}

void kavoBackgroundLoader::fail(const QString &file, const QString &reason)
{
    reset();
    emit failed(file, reason);
}

void kavoBackgroundLoader::reset()
{
    m_retry.stop();
    m_files.clear();
    m_sceneFiles.clear();
    m_partlyRead.clear();
    m_cameras.clear();
    m_parsed.clear();
    if (m_builder) { // it may be emitting a signal
        m_builder->disconnect(this);
        m_builder->deleteLater();
        m_builder = nullptr;
    }
}
