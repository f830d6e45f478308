#pragma once

#include "Import/kavoGraphBuilder.h"

#include <kavoNodePtr.h>

#include <QObject>
#include <QTimer>

/// Builds an OpenSG scene of parsed files on the GUI thread, a slice of a few milliseconds in each
/// round of the event loop, so that the application stays at hand meanwhile.
///
/// The root is a group with a child for each file and, last, the material library: a node
/// "Materials" with a child for each material, whose core is a MaterialGroup.
class kavoIncrementalBuilder : public QObject
{
    Q_OBJECT

public:
    using Files = std::vector<std::shared_ptr<kavoParsedFile>>;
    using Cameras = std::vector<osg::RefPtr<osg::CameraPtr>>;

    explicit kavoIncrementalBuilder(const Files &files, QObject *parent = nullptr);

    void start();

    /// The root, referenced by the builder as long as that lives; whole once `finished` is emitted.
    osg::NodePtr root() const { return m_root; }
    Cameras cameras() const;

signals:
    void progress(int percent);
    void finished();

private:
    void buildSlice();
    bool buildStep();
    int percentDone() const;

    kavoNodePtr m_root;
    kavoNodePtr m_library; // below the root when all files are
    std::vector<kavoGraphBuilder> m_files;
    QTimer m_timer;
};
