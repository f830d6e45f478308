#include "Import/kavoAssimpParser.h"

#include "Basics/kavoTry.h"
#include "Import/kavoImportCheck.h"
#include "Import/kavoImportProgress.h"
#include "Import/kavoParsedFile.h"
#include "Import/kavoTextureReader.h"
#include "Import/kavoTextureSlot.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <atomic>

namespace {

// Assimp's readers recurse into nested nodes. The system only provides the stack pages in use.
constexpr unsigned int stackBytes = 256u << 20;
constexpr unsigned int postProcessing = aiProcess_Triangulate | aiProcess_GenSmoothNormals
    | aiProcess_JoinIdenticalVertices | aiProcess_SortByPType;

std::unique_ptr<Assimp::Importer> makeImporter(kavoImportProgress *progress)
{
    auto importer = std::make_unique<Assimp::Importer>();
    importer->SetPropertyBool(AI_CONFIG_IMPORT_FBX_PRESERVE_PIVOTS, false);
    importer->SetPropertyBool(AI_CONFIG_IMPORT_NO_SKELETON_MESHES, true);
    importer->SetProgressHandler(progress); // the importer takes ownership
    return importer;
}

void requireScene(const aiScene *scene, const Assimp::Importer &importer)
{
    if (scene && scene->mRootNode)
        return;
    const QString error = QString::fromUtf8(importer.GetErrorString());
    throw std::runtime_error(error.isEmpty() ? "the file holds no scene" : error.toStdString());
}

} // namespace

struct kavoAssimpParser::Job
{
    std::shared_ptr<kavoParsedFile> result = std::make_shared<kavoParsedFile>();
    std::optional<QString> reason; // why parsing failed; empty if it succeeded
    std::atomic_bool canceled { false };
};

kavoAssimpParser::kavoAssimpParser(QObject *parent)
    : QObject(parent)
{
    m_workers.setStackSize(stackBytes);
}

kavoAssimpParser::~kavoAssimpParser()
{
    cancel();
    wait();
}

void kavoAssimpParser::start(const QString &fileName)
{
    cancel();
    m_job = std::make_shared<Job>();
    m_job->result->fileName = fileName;
    m_workers.start([this, job = m_job] { run(job); });
}

void kavoAssimpParser::cancel()
{
    if (m_job) {
        m_job->canceled = true;
        m_job.reset();
    }
}

void kavoAssimpParser::run(const std::shared_ptr<Job> &job)
{
    const auto failure = kavoTry([&] {
        parse(*job);
        readTextures(*job);
    });
    if (failure)
        job->result->importer.reset(); // deleting a deep scene needs the stack of this thread
    if (job->canceled)
        return;
    job->reason = failure;
    QMetaObject::invokeMethod(
        this, [this, job] { conclude(job); }, Qt::QueuedConnection);
}

void kavoAssimpParser::parse(Job &job)
{
    const auto report = [this, id = &job](int percent) {
        const auto tell = [this, id, percent] {
            if (m_job.get() == id)
                emit progress(percent);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    };
    kavoParsedFile &result = *job.result;
    result.importer = makeImporter(new kavoImportProgress(job.canceled, report));
    Assimp::Importer &importer = *result.importer;
    requireScene(importer.ReadFile(result.fileName.toStdString(), 0), importer);
    kavoImportCheck::check(*importer.GetScene());
    result.scene = importer.ApplyPostProcessing(postProcessing);
    requireScene(result.scene, importer);
}

void kavoAssimpParser::readTextures(Job &job)
{
    kavoParsedFile &result = *job.result;
    const kavoTextureReader reader(*result.scene, result.fileName);
    for (unsigned int i = 0; i < result.scene->mNumMaterials && !job.canceled; ++i) {
        const QString path = kavoTextureSlot::of(*result.scene->mMaterials[i]).path;
        if (path.isEmpty() || result.textures.contains(path))
            continue;
        result.textures.insert(path, reader.read(path));
        if (result.textures.value(path).isNull())
            result.warnings += tr("Texture \"%1\" is missing or no image").arg(path);
    }
}

void kavoAssimpParser::conclude(const std::shared_ptr<Job> &job)
{
    if (job != m_job)
        return; // this job was canceled
    m_job.reset();
    if (!job->reason) {
        emit finished(job->result);
    } else {
        emit failed(job->result->fileName, *job->reason);
    }
}
