#pragma once

#include "Window/kavoCommandLine.h"

#include <QObject>

class kavoMainWindow;

/// Runs what the command line asks for once its scenes are open: selection and jobs.
class kavoJobs : public QObject
{
    Q_OBJECT

public:
    kavoJobs(const kavoCommandLine &commandLine, kavoMainWindow &window);

    /// Opens the scenes and does the rest when they are there. With jobs it ends the event loop
    /// afterwards; if one fails, after a line on standard error that says why. Without jobs errors
    /// are shown in the window. Rows of a table that have no place in the scene are a
    /// failure, too, but no other job is left out for them.
    void start();

    /// Of the process: 1 as long as there are jobs that are not done.
    int exitCode() const { return m_exitCode; }

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
    kavoMainWindow &m_window;
    int m_exitCode;
};
