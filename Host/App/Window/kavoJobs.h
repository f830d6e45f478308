#pragma once

#include "Window/kavoCommandLine.h"

#include <QObject>

class QKAVODockWindowManager;
class QWidget;
class kavoSession;

/// Runs what the command line asks for after its scenes are open: selection and jobs.
class kavoJobs : public QObject
{
    Q_OBJECT

public:
    /// \param window for the screenshot
    kavoJobs(const kavoCommandLine &commandLine, kavoSession &session,
        QKAVODockWindowManager &docks, QWidget &window);

    /// Opens the scenes, then selects and runs the jobs. If there are jobs, it ends the event loop
    /// after the last job, or after the first that fails; then it writes the reason to standard
    /// error. Rows of a table that have no place in the scene are a failure, but the other jobs
    /// still run.
    void start();

    /// The exit code of the process: 1 until all jobs are done.
    int exitCode() const { return m_exitCode; }

signals:
    /// Something failed although there are no jobs. Failed jobs write to standard error instead.
    void failed(const QString &message);

private:
    void run();
    void runAll();
    void cancel();
    void forgetScenes();
    void fail(const QString &message);
    bool exportValuePairs();
    void printWindow(const QString &key);
    void saveScreenshot(const QString &file);

    const kavoCommandLine &m_commandLine;
    kavoSession &m_session;
    QKAVODockWindowManager &m_docks;
    QWidget &m_window;
    int m_exitCode;
};
