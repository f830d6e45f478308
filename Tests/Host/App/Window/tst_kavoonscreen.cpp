#include "Window/kavoMainWindow.h"
#include "Window/kavoSession.h"
#include <QKAVODockWindowManager.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

// Uses the main window in a real window system with mouse and keyboard.
class tst_OnScreen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aDockWindowClosesAndOpensThroughTheViewMenu();
    void theShortcutsOfTheEditMenuWork();
    void cleanupTestCase();

private:
    kavoMainWindow *m_window = nullptr;
};

void tst_OnScreen::initTestCase()
{
    static auto *const window = new kavoMainWindow;
    m_window = window;
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_OnScreen::aDockWindowClosesAndOpensThroughTheViewMenu()
{
    QMenuBar *bar = m_window->menuBar();
    QAction *view = bar->actions().at(2);
    QWidget *log = m_window->docks().window("Log");
    for (const bool visible : { false, true }) {
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(view).center());
        QTRY_VERIFY(view->menu()->isVisible());
        const QRect row = view->menu()->actionGeometry(m_window->docks().toggleAction("Log"));
        QTest::mouseClick(view->menu(), Qt::LeftButton, {}, row.center());
        QTRY_COMPARE(log->isVisible(), visible);
    }
}

void tst_OnScreen::theShortcutsOfTheEditMenuWork()
{
    kavoScenegraph::setRoot(kavoTestScene::makeTruck());
    m_window->session().select("Tyre");
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(kavoScenegraph::getNodeName(kavoScenegraph::getSelectedNode()), "Wheel");
    QTest::keyClick(m_window->windowHandle(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(kavoScenegraph::getSelectedNode() == osg::NullFC);
}

void tst_OnScreen::cleanupTestCase()
{
    m_window->shutDown();
}

KAVO_TEST_MAIN(tst_OnScreen)
#include "tst_kavoonscreen.moc"
