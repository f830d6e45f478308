#include "kavoSceneLoader.h"

#include "kavoImportedScene.h"
#include "kavoSceneBuilder.h"
#include "kavoSceneCameras.h"
#include "kavoSceneImporter.h"

#include <kavoLog.h>

#include <QFileInfo>

namespace {

constexpr int parsingShare = 70; // per cent of a load, as far as the progress shows

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
    connect(m_importer, &kavoSceneImporter::finished, this, &kavoSceneLoader::addFile);
    connect(m_importer, &kavoSceneImporter::failed, this, &kavoSceneLoader::fail);
    connect(m_importer, &kavoSceneImporter::progress, this, [this](int percent) {
        const int files = m_files.size();
        const int done = 100 * int(m_imported.size()) + percent;
        emit progress(parsingShare * done / (100 * files),
            tr("Reading %1").arg(baseName(m_files[int(m_imported.size())])));
    });
}

kavoSceneLoader::~kavoSceneLoader() = default;

void kavoSceneLoader::load(const QStringList &files)
{
    cancel();
    m_files = files;
    if (!files.isEmpty())
        importNext();
}

void kavoSceneLoader::cancel()
{
    if (!isLoading())
        return;
    m_importer->cancel();
    reset();
    emit canceled();
}

bool kavoSceneLoader::isLoading() const
{
    return !m_files.isEmpty();
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
    m_builder = std::make_unique<kavoSceneBuilder>(m_imported);
    connect(m_builder.get(), &kavoSceneBuilder::finished, this, &kavoSceneLoader::conclude);
    connect(m_builder.get(), &kavoSceneBuilder::progress, this, [this](int percent) {
        emit progress(
            parsingShare + percent * (100 - parsingShare) / 100, tr("Building the scene"));
    });
    m_builder->start();
}

void kavoSceneLoader::conclude()
{
    const kavoNodePtr root = m_builder->root();
    kavoSceneCameras::set(m_builder->cameras());
    reset();
    emit progress(100, QString());
    emit loaded(root);
}

void kavoSceneLoader::fail(const QString &file, const QString &reason)
{
    reset();
    emit failed(file, reason);
}

void kavoSceneLoader::reset()
{
    m_files.clear();
    m_imported.clear();
    if (m_builder) { // perhaps in the midst of a signal
        m_builder->disconnect(this);
        m_builder.release()->deleteLater();
    }
}
