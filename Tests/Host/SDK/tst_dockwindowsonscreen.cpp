#include <QKAVODockWindowManager.h>
#include <kavoTestHost.h>

#include <QLabel>
#include <QTest>

// Docked windows with a window system, used by mouse.
class tst_DockWindowsOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aClickOnATabShowsItsWindow();
    void theTabTellsTheTitleOfItsWindow();
    void deletingAWindowLeavesTheOthersUsable();

private:
    QWidget *add(const char *key);
    static QWidget *tabOf(const QString &title);
};

QWidget *tst_DockWindowsOnScreen::add(const char *key)
{
    auto *widget = new QLabel(key, &kavoTestHost::mainWindow());
    kavoTestHost::docks().add(
        key, "Scene", widget, QString(), QIcon(), key, Qt::LeftDockWidgetArea, true, nullptr);
    return widget;
}

QWidget *tst_DockWindowsOnScreen::tabOf(const QString &title)
{
    for (const QLabel *label : kavoTestHost::mainWindow().findChildren<QLabel *>()) {
        QWidget *parent = label->parentWidget();
        if (label->text() == title && parent->inherits("ads::CDockWidgetTab"))
            return parent;
    }
    return nullptr;
}

void tst_DockWindowsOnScreen::initTestCase()
{
    for (const char *key : { "Scene", "Materials", "Lights" })
        add(key);
    QVERIFY(kavoTestHost::show());
}

void tst_DockWindowsOnScreen::aClickOnATabShowsItsWindow()
{
    QWidget *materials = kavoTestHost::docks().window("Materials");
    QVERIFY(!materials->isVisible());
    QVERIFY(tabOf("Materials"));
    QTest::mouseClick(tabOf("Materials"), Qt::LeftButton);
    QTRY_VERIFY(materials->isVisible());
    QVERIFY(!kavoTestHost::docks().window("Scene")->isVisible());
}

void tst_DockWindowsOnScreen::theTabTellsTheTitleOfItsWindow()
{
    kavoTestHost::docks().window("Scene")->setWindowTitle("Scene - truck.gltf");
    QCOMPARE(tabOf("Scene")->toolTip(), QStringLiteral("Scene - truck.gltf"));
}

void tst_DockWindowsOnScreen::deletingAWindowLeavesTheOthersUsable()
{
    delete kavoTestHost::docks().window("Materials");
    QTRY_VERIFY(!tabOf("Materials"));
    QTest::mouseClick(tabOf("Lights"), Qt::LeftButton);
    QTRY_VERIFY(kavoTestHost::docks().window("Lights")->isVisible());
}

KAVO_TEST_MAIN(tst_DockWindowsOnScreen)
#include "tst_dockwindowsonscreen.moc"
