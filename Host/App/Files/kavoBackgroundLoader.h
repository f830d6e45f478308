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

/// Loads scene files in the background: parses them one by one on a worker thread, then builds one
/// scene of all of them in slices on the GUI thread. OpenSG's own files are read on the GUI thread
/// at the end, since only that may make containers; the one file loaded is then the scene itself.
class kavoBackgroundLoader : public QObject
{
    Q_OBJECT

public:
    explicit kavoBackgroundLoader(QObject *parent = nullptr);

    /// Begins to load; a load under way is canceled first. Ends in exactly one of `loaded`,
    /// `failed` and `canceled`; an empty list loads nothing. The open scene is not touched. As
    /// long as a modal dialog is open, which is about that scene, the new one waits.
    void load(const QStringList &files);

    /// Ends a load under way at once, with `canceled`; otherwise nothing happens.
    void cancel();

    /// Cancels and waits until the worker is at rest, so that the process may end.
    void shutDown();

    bool isLoading() const;

    /// Asked when the new scene is ready; a load that it refuses is canceled.
    void setConfirmation(const std::function<bool()> &mayReplaceScene)
    {
        m_mayReplaceScene = mayReplaceScene;
    }

signals:
    void progress(int percent, const QString &what);

    /// The new scene. Receivers that want to keep it reference its root (kavoScenegraph::setRoot
    /// does); otherwise it is gone when they return. The cameras of the files are in
    /// kavoSceneCameras. Of some of the files perhaps only a part could be read.
    void loaded(osg::NodePtr root, const QStringList &partlyRead);

    /// One of the files cannot be read; nothing comes of the others either.
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

    QStringList m_files; ///< to be parsed and built
    QStringList m_sceneFiles; ///< of OpenSG
    QStringList m_partlyRead;
    kavoCameraAttachment::List m_cameras;
    std::vector<std::shared_ptr<kavoParsedFile>> m_parsed;
    std::function<bool()> m_mayReplaceScene = [] { return true; };
    kavoAssimpParser *m_parser;
    kavoIncrementalBuilder *m_builder = nullptr;
    QTimer m_retry; ///< of concluding
};
