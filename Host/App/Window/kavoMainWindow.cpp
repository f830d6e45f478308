#include "Window/kavoMainWindow.h"

#include "Files/kavoDocument.h"
#include "Scene/kavoOpenScene.h"
#include "Tables/kavoExportActions.h"
#include "Window/kavoDockedViews.h"
#include "Window/kavoEditActions.h"
#include "Window/kavoLoadProgress.h"
#include "Window/kavoLogView.h"
#include "Window/kavoRecentFiles.h"
#include "Window/kavoSaveActions.h"
#include "Window/kavoSession.h"

#include <QKAVODockWindowManager.h>
#include <kavoController.h>
#include <kavoIconManager.h>
#include <kavoModuleBase.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>

namespace {

const QString geometryKey = QStringLiteral("mainWindow/geometry");
const QString layoutKey = QStringLiteral("mainWindow/layout");
const QString folderKey = QStringLiteral("mainWindow/folder");

QStringList localFiles(const QMimeData *data)
{
    QStringList files;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

} // namespace

kavoMainWindow::kavoMainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_docks(new QKAVODockWindowManager(this))
    , m_session(new kavoSession(this))
    , m_views(new kavoDockedViews(m_session->scene(), this))
{
    kavoController::setMainWindow(this);
    kavoController::setDockWindowManager(m_docks);
    showTitle();
    setAcceptDrops(true);
    resize(1280, 800);
    createFileMenu();
    new kavoEditActions(m_views->deletion(), menuBar()->addMenu(tr("&Edit")));
    createViewMenu();
    createHelpMenu();
    createStatusBar();
    createDockWindows();
    connectSession();
    driveModules();
}

void kavoMainWindow::loadPlugins(const QStringList &extraFolders)
{
    if (QFileInfo::exists(kavoPluginLoader::defaultFolder()))
        m_plugins.load(kavoPluginLoader::defaultFolder());
    for (const QString &folder : extraFolders)
        m_plugins.load(folder);
    kavoController::notifyModules(&kavoModuleBase::init);
}

void kavoMainWindow::useSettings()
{
    m_usesSettings = true;
    const QSettings settings;
    restoreGeometry(settings.value(geometryKey).toByteArray());
    m_docks->restoreState(settings.value(layoutKey).toByteArray());
}

void kavoMainWindow::shutDown()
{
    m_docks->hideAll();
    hide();
    m_views->closeViewport();
    m_session->close();
}

void kavoMainWindow::reportError(const QString &message)
{
    auto *box = new QMessageBox(QMessageBox::Warning, QApplication::applicationDisplayName(),
        message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void kavoMainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_saving->mayClose()) {
        event->ignore();
        return;
    }
    if (m_usesSettings)
        saveSettings();
    // Floating windows would keep the application running.
    m_docks->hideAll();
    event->accept();
}

void kavoMainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void kavoMainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    m_session->replace(localFiles(event->mimeData()));
}

void kavoMainWindow::createDockWindows()
{
    m_views->dock(*m_docks);
    m_docks->add("Log", QStringLiteral("Log"), new kavoLogView(this),
        QStringLiteral("Hintcard_Log"), kavoIconManager::getIcon("Log"), tr("Log"),
        Qt::BottomDockWidgetArea, true, nullptr);
}

void kavoMainWindow::createFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(kavoIconManager::getIcon("Open"), tr("&Open..."), this,
        &kavoMainWindow::askForFiles, QKeySequence::Open);
    m_recentFiles = new kavoRecentFiles(this);
    connect(m_recentFiles, &kavoRecentFiles::chosen, this,
        [this](const QString &file) { m_session->replace({ file }); });
    menu->addMenu(m_recentFiles);
    menu->addSeparator();
    m_saving = new kavoSaveActions(m_session->document(), this, menu);
    connect(m_saving, &kavoSaveActions::failed, this, &kavoMainWindow::reportError);
    connect(m_saving, &kavoSaveActions::saved, this, &kavoMainWindow::rememberFile);
    menu->addSeparator();
    auto *exports = new kavoExportActions(this, menu);
    connect(exports, &kavoExportActions::failed, this, &kavoMainWindow::reportError);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &kavoMainWindow::close, QKeySequence::Quit);
}

void kavoMainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    connect(
        m_docks, &QKAVODockWindowManager::windowsChanged, this, &kavoMainWindow::rebuildViewMenu);
    rebuildViewMenu();
}

void kavoMainWindow::rebuildViewMenu()
{
    m_viewMenu->clear();
    for (const QString &key : m_docks->keys())
        m_viewMenu->addAction(m_docks->toggleAction(key));
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(tr("&Reset Layout"), m_docks, &QKAVODockWindowManager::resetLayout);
}

void kavoMainWindow::createHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(
        tr("&About %1").arg(QApplication::applicationDisplayName()), this, &kavoMainWindow::about);
    menu->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void kavoMainWindow::createStatusBar()
{
    m_progress = new kavoLoadProgress;
    statusBar()->addPermanentWidget(m_progress);
}

void kavoMainWindow::connectSession()
{
    m_session->setConfirmation([this] { return m_saving->mayClose(); });
    connect(&m_session->document(), &kavoDocument::changed, this, &kavoMainWindow::showTitle);
    connect(m_progress, &kavoLoadProgress::cancelRequested, m_session, &kavoSession::cancelOpening);
    connect(m_session, &kavoSession::opening, m_progress, &kavoLoadProgress::report);
    connect(m_session, &kavoSession::opened, m_progress, &QWidget::hide);
    connect(m_session, &kavoSession::openFailed, m_progress, &QWidget::hide);
    connect(m_session, &kavoSession::openCanceled, m_progress, &QWidget::hide);
    connect(m_session, &kavoSession::openCanceled, statusBar(),
        [this] { statusBar()->showMessage(tr("Loading canceled"), 5000); });
    connect(m_session, &kavoSession::opened, this, [this](const QStringList &files) {
        for (const QString &file : files)
            rememberFile(file);
    });
}

void kavoMainWindow::driveModules()
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
        [] { kavoController::notifyModules(&kavoModuleBase::loop); });
    connect(&m_session->scene(), &kavoOpenScene::changed, this,
        [] { kavoController::notifyModules(&kavoModuleBase::update); });
}

void kavoMainWindow::askForFiles()
{
    QSettings settings;
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open Scene"), settings.value(folderKey).toString());
    if (files.isEmpty())
        return;
    settings.setValue(folderKey, QFileInfo(files.first()).absolutePath());
    m_session->replace(files);
}

void kavoMainWindow::rememberFile(const QString &file)
{
    if (m_usesSettings)
        m_recentFiles->add(file);
}

void kavoMainWindow::showTitle()
{
    const QString title = m_session->document().title();
    setWindowTitle(
        (title.isEmpty() ? QApplication::applicationDisplayName() : title) + QStringLiteral("[*]"));
    setWindowModified(m_session->document().isModified());
}

void kavoMainWindow::about()
{
    QMessageBox::about(this, tr("About %1").arg(QApplication::applicationDisplayName()),
        tr("<h3>%1 %2</h3><p>Opens 3D scenes as OpenSG scene graphs and lets plug-ins work on "
           "them.</p>")
            .arg(QApplication::applicationDisplayName(), QApplication::applicationVersion()));
}

void kavoMainWindow::saveSettings() const
{
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(layoutKey, m_docks->saveState());
}
