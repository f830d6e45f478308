#include <QKAVOColorManipulator.h>

#include <kavoRealInput.h>

#include <QApplication>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

class tst_ColorManipulatorOnScreen : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aSecondClickClosesThePopup();
    void aClickOutsideKeepsTheColor();
    void focusReturnsWhenThePopupCloses();
    void tabGoesThroughTheFields();
    void thePopupStaysOnTheScreen();
    void theEyedropperTakesTheClickedPixel();
    void theEyedropperIsMovedAndUsedByKeys();
    void escapeGivesTheEyedropperUpAlone();

private:
    QWidget *child(const char *name) const { return m_picker->findChild<QWidget *>(name); }
    void open();

    QTemporaryDir m_settings;
    QWidget *m_window = nullptr;
    QWidget *m_target = nullptr;
    QKAVOColorManipulator *m_picker = nullptr;
};

void tst_ColorManipulatorOnScreen::initTestCase()
{
    QCoreApplication::setOrganizationName("kavotest");
    QCoreApplication::setApplicationName("colormanipulatoronscreen");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

void tst_ColorManipulatorOnScreen::init()
{
    m_window = new QWidget;
    m_target = new QWidget(m_window);
    m_target->setAutoFillBackground(true);
    m_target->setPalette(QColor(51, 102, 153));
    m_target->setGeometry(0, 0, 40, 200);
    m_picker = new QKAVOColorManipulator(m_window, "picker");
    m_picker->setGeometry(60, 10, 150, 22);
    m_window->setGeometry(100, 100, 300, 200);
    m_window->show();
    m_window->activateWindow();
    m_picker->setFocus();
    m_picker->setColor(1, 0, 0);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_ColorManipulatorOnScreen::cleanup()
{
    delete m_window;
}

void tst_ColorManipulatorOnScreen::open()
{
    kavoRealInput::press({ "alt+Down" });
    QTRY_VERIFY(child("colorPopup") && child("colorPopup")->isVisible());
}

void tst_ColorManipulatorOnScreen::aSecondClickClosesThePopup()
{
    kavoRealInput::click(m_picker);
    QTRY_VERIFY(child("colorPopup") && child("colorPopup")->isVisible());
    kavoRealInput::click(m_picker);
    QTRY_VERIFY(!child("colorPopup")->isVisible());
}

void tst_ColorManipulatorOnScreen::aClickOutsideKeepsTheColor()
{
    open();
    kavoRealInput::type("#00ff00");
    kavoRealInput::click(m_target);
    QTRY_VERIFY(!child("colorPopup")->isVisible());
    QCOMPARE(m_picker->getColor()[0], 120.0f);
}

void tst_ColorManipulatorOnScreen::focusReturnsWhenThePopupCloses()
{
    open();
    QVERIFY(!m_picker->hasFocus());
    kavoRealInput::press({ "Escape" });
    QTRY_VERIFY(m_picker->hasFocus());
    open();
}

void tst_ColorManipulatorOnScreen::tabGoesThroughTheFields()
{
    QSettings().setValue("ColorPicker/recent", QVariantList { QColor(Qt::red) });
    open();
    QStringList order;
    for (const QWidget *field = child("hex"); !order.contains(field->objectName());
         field = QApplication::focusWidget()) {
        QTRY_VERIFY(QApplication::focusWidget() == field);
        order << field->objectName();
        kavoRealInput::press({ "Tab" });
        QTRY_VERIFY(QApplication::focusWidget() && QApplication::focusWidget() != field);
    }
    QCOMPARE(order.join(' '),
        QStringLiteral("hex eyedropper HueField SaturationField ValueField RedField GreenField "
                       "BlueField recentColors"));
    QCOMPARE(QApplication::focusWidget(), child("hex"));
}

void tst_ColorManipulatorOnScreen::thePopupStaysOnTheScreen()
{
    const QRect available = m_window->screen()->availableGeometry();
    m_window->move(available.bottomRight() - QPoint(220, 60));
    QTest::qWait(50);
    open();
    QVERIFY(available.contains(child("colorPopup")->frameGeometry()));
    QVERIFY(child("colorPopup")->geometry().bottom() < m_picker->mapToGlobal(QPoint()).y());
}

void tst_ColorManipulatorOnScreen::theEyedropperTakesTheClickedPixel()
{
    open();
    kavoRealInput::click(child("eyedropper"));
    QTRY_VERIFY(child("screenColorPicker"));
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    kavoRealInput::click(m_target->mapToGlobal(QPoint(20, 150)));
    QTRY_VERIFY(!child("screenColorPicker"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(qRound(m_picker->getColor()[0]), 210);
    QCOMPARE(m_picker->getColor()[2], 0.6f);
    QVERIFY(child("colorPopup")->isVisible());
}

void tst_ColorManipulatorOnScreen::theEyedropperIsMovedAndUsedByKeys()
{
    open();
    kavoRealInput::press({ "Tab", "space" });
    QTRY_VERIFY(child("screenColorPicker"));
    kavoRealInput::moveTo(m_target->mapToGlobal(QPoint(41, 150)));
    kavoRealInput::press({ "Left" });
    kavoRealInput::press({ "Left" });
    kavoRealInput::press({ "Return" });
    QTRY_VERIFY(!child("screenColorPicker"));
    QCOMPARE(qRound(m_picker->getColor()[0]), 210);
}

void tst_ColorManipulatorOnScreen::escapeGivesTheEyedropperUpAlone()
{
    open();
    kavoRealInput::click(child("eyedropper"));
    QTRY_VERIFY(child("screenColorPicker"));
    kavoRealInput::press({ "Escape" });
    QTRY_VERIFY(!child("screenColorPicker"));
    QVERIFY(child("colorPopup")->isVisible());
    QCOMPARE(m_picker->getColor()[0], 0.0f);
}

QTEST_MAIN(tst_ColorManipulatorOnScreen)
#include "tst_colormanipulatoronscreen.moc"
