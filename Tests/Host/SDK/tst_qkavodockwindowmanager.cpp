#include <QKAVODockWindowManager.h>
#include <kavoIconManager.h>
#include <kavoLog.h>
#include <kavoTestHost.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class tst_QKAVODockWindowManager : public QObject
{
    Q_OBJECT

public slots:
    void deleteScene() { delete m_docks->window("Scene"); }

private slots:
    void init();
    void cleanup();
    void aWindowIsFoundByItsKey();
    void aWindowIsVisibleOnceTheMainWindowIs();
    void aWindowAddedClosedStaysClosed();
    void aSecondWindowOfTheSameKeyIsRefused();
    void windowsOfOneGroupAreTabs();
    void windowsOfOtherGroupsAreNotTabs();
    void windowsOfOneGroupOnDifferentSidesAreNotTabs();
    void theFirstWindowOfAGroupIsInFront();
    void showBringsATabToTheFront();
    void theToggleActionOpensAndCloses();
    void theToggleActionBringsATabToTheFrontBeforeItCloses();
    void theToggleActionCarriesTheIcon();
    void theMenuReceivesTheToggleAction();
    void theHintKeyIsKept();
    void aDeletedWindowLeaves();
    void aWindowMayBeDeletedWhenItIsHidden_data();
    void aWindowMayBeDeletedWhenItIsHidden();
    void aKeyIsFreeAgainOnceItsWindowIsDeleted();
    void theStateRemembersClosedWindows();
    void theStateRemembersWhichTabIsInFront();
    void aWindowThatTheStateDoesNotKnowKeepsItsDefaultPlace();
    void bytesThatAreNoStateChangeNothing();
    void resetLayoutOpensEverythingInItsPlace();
    void hideAllHidesEveryWindow();

private:
    QWidget *add(const char *key, const QString &group,
        Qt::DockWidgetArea area = Qt::NoDockWidgetArea, bool visible = true);

    bool areTabs(const QString &key, const QString &otherKey) const;

    std::unique_ptr<QMainWindow> m_mainWindow;
    QKAVODockWindowManager *m_docks = nullptr;
};

void tst_QKAVODockWindowManager::init()
{
    m_mainWindow = std::make_unique<QMainWindow>();
    m_docks = new QKAVODockWindowManager(m_mainWindow.get());
    m_mainWindow->resize(800, 600);
    m_mainWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_mainWindow.get()));
}

void tst_QKAVODockWindowManager::cleanup()
{
    m_mainWindow.reset();
}

QWidget *tst_QKAVODockWindowManager::add(
    const char *key, const QString &group, Qt::DockWidgetArea area, bool visible)
{
    auto *widget = new QLabel(key, m_mainWindow.get());
    m_docks->add(key, group, widget, QStringLiteral("Hintcard_%1").arg(key),
        kavoIconManager::getIcon("Node"), key, area, visible, nullptr);
    return widget;
}

// Each window hides the other when it is shown.
bool tst_QKAVODockWindowManager::areTabs(const QString &key, const QString &otherKey) const
{
    m_docks->show(key);
    const bool hidesOther = !m_docks->window(otherKey)->isVisible();
    m_docks->show(otherKey);
    return hidesOther && !m_docks->window(key)->isVisible();
}

void tst_QKAVODockWindowManager::aWindowIsFoundByItsKey()
{
    QSignalSpy changes(m_docks, &QKAVODockWindowManager::windowsChanged);
    QWidget *scene = add("Scene", "Scene");
    QCOMPARE(m_docks->window("Scene"), scene);
    QCOMPARE(m_docks->group("Scene"), QStringLiteral("Scene"));
    QCOMPARE(m_docks->keys(), QStringList { "Scene" });
    QVERIFY(!m_docks->window("Log"));
    QVERIFY(!m_docks->toggleAction("Log"));
    QCOMPARE(changes.count(), 1);
}

void tst_QKAVODockWindowManager::aWindowIsVisibleOnceTheMainWindowIs()
{
    QVERIFY(add("Scene", "Scene")->isVisible());
    m_mainWindow->hide();
    QVERIFY(!m_docks->window("Scene")->isVisible());
}

void tst_QKAVODockWindowManager::aWindowAddedClosedStaysClosed()
{
    QVERIFY(!add("Scene", "Scene", Qt::LeftDockWidgetArea, false)->isVisible());
    QVERIFY(!m_docks->toggleAction("Scene")->isChecked());
}

void tst_QKAVODockWindowManager::aSecondWindowOfTheSameKeyIsRefused()
{
    QWidget *first = add("Scene", "Scene");
    add("Scene", "Other");
    QCOMPARE(m_docks->window("Scene"), first);
    QCOMPARE(m_docks->keys().size(), 1);
    QCOMPARE(QString::fromStdString(kavoLog::history().back().text),
        QStringLiteral("A window is already docked under the key 'Scene'"));
}

void tst_QKAVODockWindowManager::windowsOfOneGroupAreTabs()
{
    add("Scene", "Scene");
    add("Materials", "Scene");
    QVERIFY(areTabs("Scene", "Materials"));
}

void tst_QKAVODockWindowManager::windowsOfOtherGroupsAreNotTabs()
{
    add("Scene", "Scene");
    add("Log", "Log");
    QVERIFY(!areTabs("Scene", "Log"));
}

void tst_QKAVODockWindowManager::windowsOfOneGroupOnDifferentSidesAreNotTabs()
{
    add("Scene", "Scene", Qt::LeftDockWidgetArea);
    add("Node Editor", "Scene");
    add("Other Editor", "Scene", Qt::RightDockWidgetArea);
    QVERIFY(!areTabs("Scene", "Node Editor"));
    QVERIFY(areTabs("Node Editor", "Other Editor"));
}

void tst_QKAVODockWindowManager::theFirstWindowOfAGroupIsInFront()
{
    QWidget *scene = add("Scene", "Scene");
    QWidget *materials = add("Materials", "Scene");
    QVERIFY(scene->isVisible());
    QVERIFY(!materials->isVisible());
}

void tst_QKAVODockWindowManager::showBringsATabToTheFront()
{
    add("Scene", "Scene");
    QWidget *materials = add("Materials", "Scene");
    m_docks->show("Materials");
    QVERIFY(materials->isVisible());
    m_docks->show("no such window");
}

void tst_QKAVODockWindowManager::theToggleActionOpensAndCloses()
{
    QWidget *scene = add("Scene", "Scene");
    m_docks->toggleAction("Scene")->trigger();
    QVERIFY(!scene->isVisible());
    m_docks->toggleAction("Scene")->trigger();
    QVERIFY(scene->isVisible());
}

void tst_QKAVODockWindowManager::theToggleActionBringsATabToTheFrontBeforeItCloses()
{
    add("Scene", "Scene");
    QWidget *materials = add("Materials", "Scene");
    auto *list = new QLineEdit(materials);
    m_docks->toggleAction("Materials")->trigger();
    QVERIFY(materials->isVisible());
    QCOMPARE(QApplication::focusWidget(), list);
    QVERIFY(m_docks->toggleAction("Materials")->isChecked());
    m_docks->toggleAction("Materials")->trigger();
    QVERIFY(!materials->isVisible());
    QVERIFY(!m_docks->toggleAction("Materials")->isChecked());
}

void tst_QKAVODockWindowManager::theToggleActionCarriesTheIcon()
{
    add("Scene", "Scene");
    QVERIFY(!m_docks->toggleAction("Scene")->icon().isNull());
}

void tst_QKAVODockWindowManager::theMenuReceivesTheToggleAction()
{
    QMenu menu;
    m_docks->add("Scene", "Scene", new QLabel(m_mainWindow.get()), QString(), QIcon(), "Scene",
        Qt::NoDockWidgetArea, true, &menu);
    QCOMPARE(menu.actions(), QList<QAction *> { m_docks->toggleAction("Scene") });
}

void tst_QKAVODockWindowManager::theHintKeyIsKept()
{
    add("Scene", "Scene");
    QCOMPARE(m_docks->hintKey("Scene"), QStringLiteral("Hintcard_Scene"));
}

void tst_QKAVODockWindowManager::aDeletedWindowLeaves()
{
    add("Log", "Log");
    QWidget *scene = add("Scene", "Scene");
    QSignalSpy changes(m_docks, &QKAVODockWindowManager::windowsChanged);
    delete scene;
    QCOMPARE(m_docks->keys(), QStringList { "Log" });
    QCOMPARE(changes.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_docks->window("Log")->isVisible());
}

void tst_QKAVODockWindowManager::aWindowMayBeDeletedWhenItIsHidden_data()
{
    QTest::addColumn<bool>("isAction");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("by its action") << true << QByteArray(SIGNAL(toggled(bool)));
    QTest::newRow("by its dock") << false << QByteArray(SIGNAL(closed()));
}

void tst_QKAVODockWindowManager::aWindowMayBeDeletedWhenItIsHidden()
{
    QFETCH(bool, isAction);
    QFETCH(QByteArray, signal);
    add("Log", "Log");
    QObject *dock = add("Scene", "Scene")->parent();
    QAction *action = m_docks->toggleAction("Scene");
    QVERIFY(connect(isAction ? action : dock, signal, this, SLOT(deleteScene())));
    action->trigger();
    QCOMPARE(m_docks->keys(), QStringList { "Log" });
    QVERIFY(!m_docks->window("Scene"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_docks->window("Log")->isVisible());
}

void tst_QKAVODockWindowManager::aKeyIsFreeAgainOnceItsWindowIsDeleted()
{
    delete add("Scene", "Scene");
    QWidget *scene = add("Scene", "Scene");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(scene->isVisible());
    const QByteArray state = m_docks->saveState();
    QVERIFY(m_docks->restoreState(state));
    QVERIFY(scene->isVisible());
}

void tst_QKAVODockWindowManager::theStateRemembersClosedWindows()
{
    QWidget *scene = add("Scene", "Scene");
    QWidget *log = add("Log", "Log");
    m_docks->toggleAction("Log")->trigger();
    const QByteArray state = m_docks->saveState();
    m_docks->toggleAction("Log")->trigger();
    m_docks->toggleAction("Scene")->trigger();
    QVERIFY(m_docks->restoreState(state));
    QVERIFY(scene->isVisible());
    QVERIFY(!log->isVisible());
}

void tst_QKAVODockWindowManager::theStateRemembersWhichTabIsInFront()
{
    QWidget *scene = add("Scene", "Scene");
    QWidget *materials = add("Materials", "Scene");
    m_docks->show("Materials");
    const QByteArray state = m_docks->saveState();
    m_docks->show("Scene");
    QVERIFY(m_docks->restoreState(state));
    QVERIFY(materials->isVisible());
    QVERIFY(!scene->isVisible());
}

void tst_QKAVODockWindowManager::aWindowThatTheStateDoesNotKnowKeepsItsDefaultPlace()
{
    add("Scene", "Scene");
    const QByteArray state = m_docks->saveState();
    add("Materials", "Scene");
    QWidget *log = add("Log", "Log", Qt::BottomDockWidgetArea);
    QVERIFY(m_docks->restoreState(state));
    QVERIFY(areTabs("Scene", "Materials"));
    QVERIFY(log->isVisible());
    QCOMPARE(log->window(), m_mainWindow.get());
}

void tst_QKAVODockWindowManager::bytesThatAreNoStateChangeNothing()
{
    QWidget *scene = add("Scene", "Scene");
    QVERIFY(!m_docks->restoreState(QByteArray()));
    QVERIFY(!m_docks->restoreState("nonsense"));
    QVERIFY(scene->isVisible());
}

void tst_QKAVODockWindowManager::resetLayoutOpensEverythingInItsPlace()
{
    QWidget *scene = add("Scene", "Scene");
    add("Materials", "Scene");
    m_docks->toggleAction("Materials")->trigger();
    m_docks->toggleAction("Scene")->trigger();
    m_docks->resetLayout();
    QVERIFY(scene->isVisible());
    QVERIFY(areTabs("Scene", "Materials"));
    QVERIFY(m_docks->toggleAction("Materials")->isChecked());
}

void tst_QKAVODockWindowManager::hideAllHidesEveryWindow()
{
    QWidget *scene = add("Scene", "Scene");
    m_docks->hideAll();
    QVERIFY(!scene->isVisible());
}

KAVO_TEST_MAIN(tst_QKAVODockWindowManager)
#include "tst_qkavodockwindowmanager.moc"
