#include "Window/kavoMainWindow.h"

#include "Files/kavoDocument.h"
#include "Files/kavoSceneLoader.h"
#include "Scene/kavoNodeFinder.h"
#include "Scene/kavoOpenScene.h"
#include "Tables/kavoExportActions.h"
#include "Window/kavoLoadProgress.h"
#include "Window/kavoLogView.h"
#include "Window/kavoRecentFiles.h"
#include "Window/kavoSaveActions.h"
#include "Window/kavoSceneViews.h"

#include <QKAVODockWindowManager.h>
#include <kavoController.h>
#include <kavoIconManager.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoModuleBase.h>
#include <kavoScenegraph.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
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

void send(int messageId)
{
    kavoMessage message(messageId);
    kavoController::sendMessage(message);
}

QStringList localFiles(const QMimeData *data)
{
    QStringList files;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

}

kavoMainWindow::kavoMainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_docks(new QKAVODockWindowManager(this))
    , m_loader(new kavoSceneLoader(this))
    , m_scene(new kavoOpenScene(this))
    , m_document(new kavoDocument(*m_scene, this))
    , m_views(new kavoSceneViews(*m_scene, this))
{
    kavoController::setMainWindow(this);
    kavoController::setDockWindowManager(m_docks);
    showTitle();
    setAcceptDrops(true);
    resize(1280, 800);
    createFileMenu();
    createEditMenu();
    createViewMenu();
    createHelpMenu();
    createStatusBar();
    createDockWindows();
    connectLoader();
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

void kavoMainWindow::open(const QStringList &files)
{
    m_loader->load(files);
    m_files = files;
    if (m_loader->isLoading())
        m_document->discardEdits();
}

bool kavoMainWindow::select(const QString &nameOrId)
{
    const osg::NodePtr node = kavoNodeFinder::find(kavoScenegraph::getRoot(), nameOrId);
    if (node == osg::NullFC)
        return false;
    kavoScenegraph::setSelectedNode(node);
    return true;
}

void kavoMainWindow::shutDown()
{
    m_docks->hideAll();
    hide();
    m_loader->shutDown();
    m_views->closeViewport();
    closeScene();
}

void kavoMainWindow::closeScene()
{
    send(kavoMessageIds::sceneCleared);
    kavoScenegraph::setRoot(osg::NullFC);
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
    // Windows that float on their own would keep the application running.
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
    openInstead(localFiles(event->mimeData()));
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
        [this](const QString &file) { openInstead({ file }); });
    menu->addMenu(m_recentFiles);
    menu->addSeparator();
    m_saving = new kavoSaveActions(*m_document, this, menu);
    connect(m_saving, &kavoSaveActions::failed, this, &kavoMainWindow::reportError);
    connect(m_saving, &kavoSaveActions::saved, this, &kavoMainWindow::rememberFile);
    connect(m_document, &kavoDocument::changed, this, &kavoMainWindow::showTitle);
    menu->addSeparator();
    auto *exports = new kavoExportActions(this, menu);
    connect(exports, &kavoExportActions::failed, this, &kavoMainWindow::reportError);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &kavoMainWindow::close, QKeySequence::Quit);
}

void kavoMainWindow::createEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    menu->addAction(
        tr("Select &Parent"), this, &kavoMainWindow::selectParent, QKeySequence(tr("Alt+Up")));
    menu->addAction(
        tr("&Deselect"), this, [] { kavoScenegraph::setSelectedNode(osg::NullFC); },
        QKeySequence(tr("Ctrl+Shift+A")));
    menu->addSeparator();
    menu->addAction(m_views->deletion());
    menu->addAction(tr("&Copy Name of Selected Node"), this, &kavoMainWindow::copyName,
        QKeySequence(tr("Ctrl+Shift+C")));
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

void kavoMainWindow::connectLoader()
{
    connect(m_progress, &kavoLoadProgress::cancelRequested, m_loader, &kavoSceneLoader::cancel);
    connect(m_loader, &kavoSceneLoader::progress, m_progress, &kavoLoadProgress::report);
    m_loader->setConfirmation([this] { return mayReplaceScene(); });
    connect(m_loader, &kavoSceneLoader::loaded, this, &kavoMainWindow::showScene);
    connect(m_loader, &kavoSceneLoader::canceled, m_document, &kavoDocument::keepEdits);
    connect(m_loader, &kavoSceneLoader::failed, m_document, &kavoDocument::keepEdits);
    connect(m_loader, &kavoSceneLoader::canceled, this, [this] {
        m_progress->hide();
        statusBar()->showMessage(tr("Loading canceled"), 5000);
        emit openCanceled();
    });
    connect(m_loader, &kavoSceneLoader::failed, this,
        [this](const QString &file, const QString &reason) {
            m_progress->hide();
            emit openFailed(tr("Cannot open '%1': %2").arg(file, reason));
        });
}

void kavoMainWindow::driveModules()
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
        [] { kavoController::notifyModules(&kavoModuleBase::loop); });
    connect(m_scene, &kavoOpenScene::changed, this,
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
    openInstead(files);
}

void kavoMainWindow::openInstead(const QStringList &files)
{
    if (m_saving->mayClose())
        open(files);
}

bool kavoMainWindow::mayReplaceScene()
{
    m_scene->drainChanges(); // of the edits of this round
    return m_saving->mayClose();
}

void kavoMainWindow::rememberFile(const QString &file)
{
    if (m_usesSettings)
        m_recentFiles->add(file);
}

void kavoMainWindow::showTitle()
{
    const QString title = m_document->title();
    setWindowTitle(
        (title.isEmpty() ? QApplication::applicationDisplayName() : title) + QStringLiteral("[*]"));
    setWindowModified(m_document->isModified());
}

void kavoMainWindow::showScene(const osg::NodePtr &root, const QStringList &partlyRead)
{
    m_progress->hide();
    closeScene();
    kavoScenegraph::setRoot(root);
    send(kavoMessageIds::sceneLoaded);
    m_document->setFiles(m_files, partlyRead);
    for (const QString &file : qAsConst(m_files))
        rememberFile(file);
    emit opened();
}

void kavoMainWindow::selectParent()
{
    const kavoNodePtr selected = kavoScenegraph::getSelectedNode();
    if (selected != osg::NullFC && selected->getParent() != osg::NullFC)
        kavoScenegraph::setSelectedNode(selected->getParent());
}

void kavoMainWindow::copyName()
{
    const char *name = kavoScenegraph::getNodeName(kavoScenegraph::getSelectedNode());
    QApplication::clipboard()->setText(QString::fromUtf8(name));
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
