#include "Window/kavoJobs.h"

#include "Basics/kavoStandardOutput.h"
#include "Basics/kavoTaskError.h"
#include "Basics/kavoTry.h"
#include "Files/kavoDocument.h"
#include "Tables/kavoExportArguments.h"
#include "Window/kavoSession.h"
#include "Window/kavoWindowPrinter.h"

#include <QKAVODockWindowManager.h>
#include <kavoScenegraph.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QImageWriter>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace {

// Processes queued messages, layouts and paints, which may cause further events.
void settle()
{
    QEventLoop loop;
    for (int round = 0; round < 100 && loop.processEvents(); ++round) { }
}

} // namespace

kavoJobs::kavoJobs(const kavoCommandLine &commandLine, kavoSession &session,
    QKAVODockWindowManager &docks, QWidget &window)
    : m_commandLine(commandLine)
    , m_session(session)
    , m_docks(docks)
    , m_window(window)
    , m_exitCode(commandLine.isJob() ? 1 : 0)
{
    connect(&session, &kavoSession::openFailed, this, &kavoJobs::fail);
    connect(&session, &kavoSession::openCanceled, this, &kavoJobs::cancel);
}

void kavoJobs::start()
{
    if (m_commandLine.sceneFiles().isEmpty()) {
        QTimer::singleShot(0, this, &kavoJobs::run);
        return;
    }
    connect(&m_session, &kavoSession::opened, this, &kavoJobs::run);
    m_session.open(m_commandLine.sceneFiles());
}

void kavoJobs::run()
{
    forgetScenes();
    if (const auto reason = kavoTry([this] { runAll(); }))
        return fail(*reason);
    if (m_commandLine.isJob())
        QCoreApplication::quit();
}

void kavoJobs::runAll()
{
    const QString node = m_commandLine.nodeToSelect();
    if (!node.isEmpty() && !m_session.select(node))
        throw kavoTaskError(tr("The scene has no node named or numbered '%1'").arg(node));
    settle();
    const bool isComplete = exportValuePairs();
    if (!m_commandLine.fileToSave().isEmpty())
        m_session.document().save(m_commandLine.fileToSave());
    if (!m_commandLine.windowToPrint().isEmpty())
        printWindow(m_commandLine.windowToPrint());
    if (!m_commandLine.screenshotFile().isEmpty())
        saveScreenshot(m_commandLine.screenshotFile());
    m_exitCode = isComplete ? 0 : 1;
}

void kavoJobs::cancel()
{
    forgetScenes();
    if (m_commandLine.isJob())
        fail(tr("Loading was canceled"));
}

// Jobs must not run again when the user opens another scene.
void kavoJobs::forgetScenes()
{
    disconnect(&m_session, &kavoSession::opened, this, nullptr);
}

void kavoJobs::fail(const QString &message)
{
    forgetScenes();
    if (!m_commandLine.isJob())
        return emit failed(message);
    std::fprintf(stderr, "kavo: %s\n", qUtf8Printable(message));
    m_exitCode = 1;
    QCoreApplication::quit();
}

bool kavoJobs::exportValuePairs()
{
    const osg::NodePtr scene = kavoScenegraph::getRoot();
    const bool isPart = !m_commandLine.nodeToSelect().isEmpty();
    return m_commandLine.exports().run(
        scene, isPart ? osg::NodePtr(kavoScenegraph::getSelectedNode()) : scene);
}

void kavoJobs::printWindow(const QString &key)
{
    QWidget *window = m_docks.window(key);
    if (!window) {
        throw kavoTaskError(tr("There is no window '%1', only %2")
                                .arg(key, m_docks.keys().join(QStringLiteral(", "))));
    }
    m_docks.show(key);
    settle();
    QString rows;
    QTextStream out(&rows);
    if (!kavoWindowPrinter(out).print(window))
        throw kavoTaskError(tr("The window '%1' has no rows to print").arg(key));
    kavoStandardOutput::write(rows.toUtf8());
}

void kavoJobs::saveScreenshot(const QString &file)
{
    QImageWriter picture(file);
    if (!picture.write(m_window.grab().toImage())) {
        throw kavoTaskError(
            tr("Cannot write the picture '%1': %2").arg(file, picture.errorString()));
    }
}
