#include "kavoTestLoad.h"

#include "Files/kavoDocument.h"
#include "Window/kavoMainWindow.h"
#include "Window/kavoSession.h"
#include <QKAVODockWindowManager.h>
#include <kavoController.h>
#include <kavoDialogUser.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoModuleBase.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QEventLoop>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

class Listener : public kavoModuleBase
{
public:
    Listener()
        : kavoModuleBase("Listener", "Test", 0x10 | 0x20)
    {
    }

    bool receivedMessage(kavoMessage &message) override
    {
        received << message.id();
        return false;
    }
    void loop() override { ++loops; }
    void update() override { ++updates; }

    QList<int> received;
    int loops = 0;
    int updates = 0;
};

const QString truck = QStringLiteral("glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void itIsTheControllersWindow();
    void theViewMenuOffersEveryDockWindow();
    void openingAnnouncesTheSceneBeforeAndAfter();
    void aBrokenFileIsNamedWithTheReasonAndTheSceneStays();
    void cancelingALoadKeepsTheScene();
    void escapeInTheSceneTreeCancelsALoadFirst();
    void theEditMenuDeletesNodes();
    void droppedFilesAreOpened();
    void otherDropsAreRefused();
    void nodesAreSelectedByNameOrId();
    void theParentOfTheSelectionCanBeSelected();
    void theNameOfTheSelectionCanBeCopied();
    void anErrorIsShownInABoxThatDoesNotBlock();
    void modulesHearOfIdleTimeAndOfChanges();
    void filesOpenedLastAreKept();
    void layoutAndSizeAreKept();
    void shuttingDownHidesTheWindowAndClosesTheScene();

private:
    QAction *action(const QString &text) const;
    bool open(const QString &file);

    kavoMainWindow *m_window = nullptr;
    QTemporaryDir m_settings;
};

void tst_MainWindow::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    QCoreApplication::setOrganizationName(QStringLiteral("kavo-test"));
    static auto *const window = new kavoMainWindow;
    m_window = window;
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_MainWindow::init()
{
    kavoScenegraph::setRoot(kavoTestScene::makeTruck());
    kavoScenegraph::setSelectedNode(osg::NullFC);
    m_window->session().document().setFiles({});
}

QAction *tst_MainWindow::action(const QString &text) const
{
    for (QAction *action : m_window->findChildren<QAction *>()) {
        if (action->text().remove('&') == text)
            return action;
    }
    return nullptr;
}

bool tst_MainWindow::open(const QString &file)
{
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    m_window->session().open({ file });
    return QTest::qWaitFor([&] { return opened.count() == 1; }, 20000);
}

void tst_MainWindow::itIsTheControllersWindow()
{
    QCOMPARE(kavoController::getMainWindow(), m_window);
    QCOMPARE(kavoController::getDockWindowManager(), &m_window->docks());
}

void tst_MainWindow::theViewMenuOffersEveryDockWindow()
{
    for (const char *key : { "Scene", "Materials", "Lights", "Cameras", "Log" })
        QVERIFY2(m_window->docks().window(key), key);
    const QList<QAction *> offered = m_window->menuBar()->actions().at(2)->menu()->actions();
    for (const QString &key : m_window->docks().keys())
        QVERIFY2(offered.contains(m_window->docks().toggleAction(key)), qPrintable(key));
}

void tst_MainWindow::openingAnnouncesTheSceneBeforeAndAfter()
{
    Listener listener;
    const osg::NodePtr before = kavoScenegraph::getRoot();
    QVERIFY(open(kavoTestLoad::model(truck)));
    QCOMPARE(listener.received,
        (QList<int> { kavoMessageIds::sceneCleared, kavoMessageIds::sceneLoaded }));
    QVERIFY(kavoScenegraph::getRoot() != before);
    QVERIFY(m_window->windowTitle().contains("CesiumMilkTruck.gltf"));
}

void tst_MainWindow::aBrokenFileIsNamedWithTheReasonAndTheSceneStays()
{
    const osg::NodePtr before = kavoScenegraph::getRoot();
    QSignalSpy failed(&m_window->session(), &kavoSession::openFailed);
    m_window->session().open({ "/no/such/scene.gltf" });
    QTRY_COMPARE(failed.count(), 1);
    const QString message = failed.first().first().toString();
    QVERIFY2(message.startsWith("Cannot open '/no/such/scene.gltf': "), qPrintable(message));
    QVERIFY(message.size() > int(strlen("Cannot open '/no/such/scene.gltf': ")));
    QVERIFY(kavoScenegraph::getRoot() == before);
}

void tst_MainWindow::cancelingALoadKeepsTheScene()
{
    const osg::NodePtr before = kavoScenegraph::getRoot();
    QSignalSpy canceled(&m_window->session(), &kavoSession::openCanceled);
    m_window->session().open({ kavoTestLoad::model(truck) });
    QWidget *progress = m_window->findChild<QWidget *>("loadProgress");
    QTRY_VERIFY(progress->isVisible());
    QTest::mouseClick(progress->findChild<QWidget *>("cancel"), Qt::LeftButton);
    QCOMPARE(canceled.count(), 1);
    QVERIFY(!progress->isVisible());
    QVERIFY(kavoScenegraph::getRoot() == before);
}

void tst_MainWindow::escapeInTheSceneTreeCancelsALoadFirst()
{
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    auto *tree = m_window->docks().window("Scene")->findChild<QTreeView *>();
    m_window->docks().show("Scene");
    m_window->session().select("Tyre");
    QSignalSpy canceled(&m_window->session(), &kavoSession::openCanceled);
    m_window->session().open({ kavoTestLoad::model(truck) });
    QTRY_VERIFY(m_window->findChild<QWidget *>("loadProgress")->isVisible());
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Escape);
    QCOMPARE(canceled.count(), 1);
    QVERIFY(kavoScenegraph::getSelectedNode() != osg::NullFC);
    QTest::keyClick(tree, Qt::Key_Escape);
    QVERIFY(kavoScenegraph::getSelectedNode() == osg::NullFC);
}

void tst_MainWindow::theEditMenuDeletesNodes()
{
    const QList<QAction *> offered = m_window->menuBar()->actions().at(1)->menu()->actions();
    QAction *deletion = action("Delete Node...");
    QVERIFY(offered.contains(deletion));
    QVERIFY(m_window->session().select("Tyre"));
    kavoDialogUser user;
    user.willPress(QMessageBox::Yes);
    deletion->trigger();
    QTRY_VERIFY(!m_window->session().select("Tyre"));
}

void tst_MainWindow::droppedFilesAreOpened()
{
    QVERIFY(open(kavoTestLoad::model(truck))); // a scene without edits, so that no question comes
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(kavoTestLoad::model(truck)) });
    QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &enter);
    QVERIFY(enter.isAccepted());
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    QDropEvent drop({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &drop);
    QVERIFY(QTest::qWaitFor([&] { return opened.count() == 1; }, 20000));
}

void tst_MainWindow::otherDropsAreRefused()
{
    QMimeData data;
    data.setText("just text");
    QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(m_window, &enter);
    QVERIFY(!enter.isAccepted());
}

void tst_MainWindow::nodesAreSelectedByNameOrId()
{
    QVERIFY(m_window->session().select("Tyre"));
    const osg::NodePtr tyre = kavoScenegraph::getSelectedNode();
    QCOMPARE(kavoScenegraph::getNodeName(tyre), "Tyre");
    QVERIFY(m_window->session().select("Wheel"));
    QVERIFY(m_window->session().select(QString::number(tyre.getFieldContainerId())));
    QVERIFY(kavoScenegraph::getSelectedNode() == kavoNodePtr(tyre));
    QVERIFY(!m_window->session().select("Sail"));
}

void tst_MainWindow::theParentOfTheSelectionCanBeSelected()
{
    m_window->session().select("Tyre");
    for (const char *name : { "Wheel", "Root", "Root" }) {
        action("Select Parent")->trigger();
        QCOMPARE(kavoScenegraph::getNodeName(kavoScenegraph::getSelectedNode()), name);
    }
}

void tst_MainWindow::theNameOfTheSelectionCanBeCopied()
{
    m_window->session().select("Tyre");
    action("Copy Name of Selected Node")->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Tyre"));
}

void tst_MainWindow::anErrorIsShownInABoxThatDoesNotBlock()
{
    m_window->reportError("Cannot open 'a': it is broken");
    auto *box = m_window->findChild<QMessageBox *>();
    QVERIFY(box && box->isVisible());
    QCOMPARE(box->text(), QStringLiteral("Cannot open 'a': it is broken"));
    QTest::keyClick(box, Qt::Key_Escape);
    QTRY_VERIFY(!m_window->findChild<QMessageBox *>());
}

void tst_MainWindow::modulesHearOfIdleTimeAndOfChanges()
{
    Listener listener;
    QEventLoop loop;
    QTimer::singleShot(20, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(listener.loops > 0);
    listener.updates = 0;
    const osg::NodePtr root = kavoScenegraph::getRoot();
    osg::beginEditCP(root, osg::Node::TravMaskFieldMask);
    osg::endEditCP(root, osg::Node::TravMaskFieldMask);
    QCOMPARE(listener.updates, 0);
    QTRY_VERIFY(listener.updates > 0);
}

void tst_MainWindow::filesOpenedLastAreKept()
{
    m_window->useSettings();
    QVERIFY(open(kavoTestLoad::model(truck)));
    const QStringList files = QSettings().value("recentFiles").toStringList();
    QCOMPARE(files, QStringList { QFileInfo(kavoTestLoad::model(truck)).absoluteFilePath() });
    QVERIFY(action(files.first()));
}

void tst_MainWindow::layoutAndSizeAreKept()
{
    m_window->useSettings();
    m_window->resize(777, 555);
    m_window->docks().toggleAction("Log")->trigger();
    QVERIFY(m_window->close());
    m_window->docks().toggleAction("Log")->trigger();
    m_window->resize(500, 400);
    m_window->useSettings();
    QCOMPARE(m_window->size(), QSize(777, 555));
    QVERIFY(!m_window->docks().toggleAction("Log")->isChecked());
}

void tst_MainWindow::shuttingDownHidesTheWindowAndClosesTheScene()
{
    Listener listener;
    m_window->shutDown();
    QVERIFY(!m_window->isVisible());
    QCOMPARE(listener.received, QList<int> { kavoMessageIds::sceneCleared });
    QVERIFY(kavoScenegraph::getRoot() == osg::NullFC);
}

KAVO_TEST_MAIN(tst_MainWindow)
#include "tst_kavomainwindow.moc"
