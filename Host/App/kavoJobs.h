#pragma once

#include "kavoCommandLine.h"

#include <QObject>

class kavoMainWindow;

/// Runs what the command line asks for once its scenes are open: selection and jobs.
class kavoJobs : public QObject
{
    Q_OBJECT

public:
    kavoJobs(const kavoCommandLine &commandLine, kavoMainWindow &window);

    /// Opens the scenes and does the rest when they are there. With jobs it ends the event loop
    /// afterwards, with 0, or with 1 after a line on standard error that says what failed; without
    /// jobs errors are shown in the window. Rows of a table that have no place in the scene are a
    /// failure, too, but no other job is left out for them.
    void start();

private:
    void run();
    void cancel();
    void forgetScenes();
    void fail(const QString &message);
    bool exportValuePairs();
    void printWindow(const QString &key);
    void saveScreenshot(const QString &file);

    const kavoCommandLine &m_commandLine;
    kavoMainWindow &m_window;
};
