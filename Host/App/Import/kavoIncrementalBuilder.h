#pragma once

#include "Import/kavoGraphBuilder.h"

#include <kavoNodePtr.h>

#include <QObject>
#include <QTimer>

/// Builds one scene graph of all parsed files on the GUI thread. It works for a few milliseconds in
/// each round of the event loop, so that the application keeps responding.
///
/// The root is a group with a child for each file. Its last child is the material library: a node
/// "Materials" with a child for each material, whose core is a MaterialGroup.
class kavoIncrementalBuilder : public QObject
{
    Q_OBJECT

public:
    using Files = std::vector<std::shared_ptr<kavoParsedFile>>;
    using Cameras = std::vector<osg::RefPtr<osg::CameraPtr>>;

    explicit kavoIncrementalBuilder(const Files &files, QObject *parent = nullptr);

    void start();

    /// The root, which the builder references. It is complete once `finished` was emitted.
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
    kavoNodePtr m_library; // added to the root after all files
    std::vector<kavoGraphBuilder> m_files;
    QTimer m_timer;
};
