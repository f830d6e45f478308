#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QObject>
#include <QStringList>

#include <functional>

class kavoDocument;
class kavoOpenScene;
class kavoBackgroundLoader;

/// The scene that is open, the document that it is saved as, and the way from one scene to the
/// next. It needs no windows.
class kavoSession : public QObject
{
    Q_OBJECT

public:
    explicit kavoSession(QObject *parent = nullptr);

    kavoOpenScene &scene() const { return *m_scene; }
    /// Tells title, file and modification, and saves.
    kavoDocument &document() const { return *m_document; }

    /// Sets a function that asks the user about unsaved edits and returns whether another scene may
    /// replace the open one.
    void setConfirmation(const std::function<bool()> &mayReplaceScene);

    /// Begins to open files as one scene. Emits exactly one of opened, openFailed and openCanceled;
    /// the open scene is replaced only before opened. Asks for confirmation if the open scene is
    /// edited while the files load; earlier edits are discarded without a question.
    void open(const QStringList &files);
    /// Asks for confirmation if there are unsaved edits, then opens the files.
    void replace(const QStringList &files);
    /// Cancels an open() that has not finished.
    void cancelOpening();

    /// Selects a node of the scene by its name or id. \returns whether there is one
    bool select(const QString &nameOrId) const;

    /// Cancels loading and closes the scene, without a question. Waits for the loading thread, so
    /// that the process may end.
    void close();

signals:
    void opening(int percent, const QString &what);
    void opened(const QStringList &files);
    void openFailed(const QString &message);
    void openCanceled();

private:
    void connectLoader();
    void showScene(const osg::NodePtr &root, const QStringList &partlyRead);

    kavoOpenScene *m_scene;
    kavoDocument *m_document;
    kavoBackgroundLoader *m_loader;
    std::function<bool()> m_mayReplaceScene = [] { return true; };
    QStringList m_files;
};
