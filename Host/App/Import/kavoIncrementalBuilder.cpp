#include "Import/kavoIncrementalBuilder.h"

#include "Import/kavoParsedFile.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <algorithm>

namespace {

constexpr int sliceMilliseconds = 8;

osg::NodePtr makeGroup(const QString &name)
{
    osg::NodePtr node = osg::makeNodeFor(osg::Group::create());
    osg::setName(node, name.toStdString());
    return node;
}

QString rootName(const kavoIncrementalBuilder::Files &files)
{
    return files.size() == 1 ? QFileInfo(files[0]->fileName).fileName() : QStringLiteral("Scene");
}

} // namespace

kavoIncrementalBuilder::kavoIncrementalBuilder(const Files &files, QObject *parent)
    : QObject(parent)
    , m_root(makeGroup(rootName(files)))
    , m_library(makeGroup(QStringLiteral("Materials")))
{
    for (const auto &file : files)
        m_files.emplace_back(file, m_root, m_library);
    connect(&m_timer, &QTimer::timeout, this, &kavoIncrementalBuilder::buildSlice);
}

void kavoIncrementalBuilder::start()
{
    m_timer.start(0);
}

kavoIncrementalBuilder::Cameras kavoIncrementalBuilder::cameras() const
{
    Cameras all;
    for (const kavoGraphBuilder &file : m_files)
        all.insert(all.end(), file.cameras().begin(), file.cameras().end());
    return all;
}

void kavoIncrementalBuilder::buildSlice()
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < sliceMilliseconds) {
        if (!buildStep()) {
            m_timer.stop();
            m_root->addChild(m_library);
            m_root->updateVolume();
            emit finished();
            return;
        }
    }
    emit progress(percentDone());
}

bool kavoIncrementalBuilder::buildStep()
{
    return std::any_of(
        m_files.begin(), m_files.end(), [](kavoGraphBuilder &file) { return file.step(); });
}

int kavoIncrementalBuilder::percentDone() const
{
    int done = 0, all = 0;
    for (const kavoGraphBuilder &file : m_files) {
        done += file.stepsDone();
        all += file.stepCount();
    }
    return all ? int(100LL * done / all) : 100;
}
