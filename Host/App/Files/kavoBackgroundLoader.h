#pragma once

#include "Files/kavoCameraAttachment.h"

#include <kavoNodePtr.h>

#include <OpenSG/OSGNode.h>

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

class kavoIncrementalBuilder;
class kavoAssimpParser;
struct kavoParsedFile;

Q_DECLARE_METATYPE(osg::NodePtr)

/// Loads scene files in the background. It parses them one by one on a worker thread, then builds
/// one scene graph of all files in slices on the GUI thread. Files of OpenSG's own format are read
/// at the end, on the GUI thread, because only that thread may create containers.
class kavoBackgroundLoader : public QObject
{
    Q_OBJECT

public:
    explicit kavoBackgroundLoader(QObject *parent = nullptr);

    /// Starts to load, and cancels a load in progress first. Each load emits exactly one of
    /// `loaded`, `failed` and `canceled`. With an empty list nothing happens. The loader does not
    /// touch the open scene, and waits with `loaded` while a modal dialog is open.
    void load(const QStringList &files);

    /// Ends a load in progress at once and emits `canceled`.
    void cancel();

    /// Cancels and blocks until the worker is idle, so that the process can end.
    void shutDown();

    bool isLoading() const;

    /// Sets a function that is called when the new scene is ready. If it returns false, the load is
    /// canceled.
    void setConfirmation(const std::function<bool()> &mayReplaceScene)
    {
        m_mayReplaceScene = mayReplaceScene;
    }

signals:
    void progress(int percent, const QString &what);

    /// Emitted with the new scene. It is destroyed after the signal unless a receiver references
    /// the root, as kavoScenegraph::setRoot does. Its cameras are in kavoCameraRegistry.
    /// \param partlyRead files of which only a part could be read
    void loaded(osg::NodePtr root, const QStringList &partlyRead);

    /// Emitted when a file cannot be read. The other files are not loaded either.
    void failed(const QString &file, const QString &reason);

    void canceled();

private:
    void parseNext();
    void addFile(const std::shared_ptr<kavoParsedFile> &file);
    void build();
    void conclude();
    bool mayReplaceScene();
    kavoNodePtr withSceneFile(const kavoNodePtr &root, const QString &file);
    void fail(const QString &file, const QString &reason);
    void reset();

    QStringList m_files; ///< of other formats, which Assimp parses
    QStringList m_sceneFiles; ///< of OpenSG's own format
    QStringList m_partlyRead;
    kavoCameraAttachment::List m_cameras;
    std::vector<std::shared_ptr<kavoParsedFile>> m_parsed;
    std::function<bool()> m_mayReplaceScene = [] { return true; };
    kavoAssimpParser *m_parser;
    kavoIncrementalBuilder *m_builder = nullptr;
    QTimer m_retry; ///< calls conclude() again after a modal dialog
};
