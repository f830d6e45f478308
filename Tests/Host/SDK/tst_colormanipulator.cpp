#include <QKAVOColorManipulator.h>

#include <QApplication>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

namespace {

using Components = QVector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();

Components hsv(const QKAVOColorManipulator &picker)
{
    const auto color = picker.getColor();
    return { color[0], color[1], color[2] };
}

void setRecentColors(const QVector<QColor> &colors)
{
    QVariantList list;
    for (const QColor &color : colors)
        list << color;
    QSettings().setValue("ColorPicker/recent", list);
}

QVector<QColor> recentColors()
{
    QVector<QColor> colors;
    for (const QVariant &color : QSettings().value("ColorPicker/recent").toList())
        colors << color.value<QColor>();
    return colors;
}

}

class tst_ColorManipulator : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theNameIsTheObjectName();
    void theOnlySignalIsColorChanged();
    void rgbComesBackAsHsv_data();
    void rgbComesBackAsHsv();
    void componentsAreNotRounded();
    void brighterThanWhiteIsKept();
    void notFiniteComponentsCountAsZero();
    void settingTheColorDoesNotSignal();
    void fitsIntoARow();
    void keysOpenThePopup_data();
    void keysOpenThePopup();
    void otherKeysStayWithTheParent_data();
    void otherKeysStayWithTheParent();
    void aLeftClickOpensThePopup();
    void fieldsShowTheColor();
    void aFieldShowsTheTrueNumberBeyondItsRange();
    void fieldsSetTheirComponent_data();
    void fieldsSetTheirComponent();
    void slidersSetTheirComponent_data();
    void slidersSetTheirComponent();
    void theWheelSetsTheHue();
    void hueOutlivesGreyAndBlack_data();
    void hueOutlivesGreyAndBlack();
    void typingAHexCodeSetsTheColor();
    void typingIsNotInterrupted();
    void anIncompleteHexCodeIsPutRight();
    void enterAndOthersKeepTheColor_data();
    void enterAndOthersKeepTheColor();
    void escapeBringsTheOldColorBackUnrounded();
    void escapeWithoutAChangeDoesNotSignal();
    void aClickOnTheOldColorTakesItBack();
    void theChosenColorBecomesRecent();
    void aColorTakenBackDoesNotBecomeRecent();
    void recentColorsAreDistinctAndLimited();
    void aRecentColorIsChosenWithTheKeyboard();
    void damagedSettingsGiveNoRecentColors();
    void hexCodesAreCopiedAndPasted();
    void otherTextIsNotPasted();
    void thePickerDiesWithItsPopupOpen();

private:
    template <class Child> Child *child(const char *name) const
    {
        return m_picker->findChild<Child *>(name);
    }
    QWidget *popup() const { return child<QWidget>("colorPopup"); }
    void open() { QTest::keyClick(m_picker, Qt::Key_Space); }

    QTemporaryDir m_settings;
    QWidget *m_window = nullptr;
    QKAVOColorManipulator *m_picker = nullptr;
};

void tst_ColorManipulator::initTestCase()
{
    QCoreApplication::setOrganizationName("kavotest");
    QCoreApplication::setApplicationName("colormanipulator");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

void tst_ColorManipulator::init()
{
    QSettings().clear();
    m_window = new QWidget;
    m_picker = new QKAVOColorManipulator(m_window, "picker");
    m_picker->resize(200, 20);
    m_window->show();
    m_picker->setColor(0.2f, 0.6f, 0.4f);
}

void tst_ColorManipulator::cleanup()
{
    delete m_window;
}

void tst_ColorManipulator::theNameIsTheObjectName()
{
    QCOMPARE(m_picker->objectName(), QStringLiteral("picker"));
    QCOMPARE(m_picker->parentWidget(), m_window);
    QCOMPARE(QKAVOColorManipulator(nullptr, nullptr).objectName(), QString());
}

void tst_ColorManipulator::theOnlySignalIsColorChanged()
{
    const QMetaObject &metaObject = QKAVOColorManipulator::staticMetaObject;
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 1);
    QCOMPARE(metaObject.method(metaObject.methodOffset()).methodSignature(),
        QByteArray("colorChanged()"));
}

void tst_ColorManipulator::rgbComesBackAsHsv_data()
{
    QTest::addColumn<Components>("rgb");
    QTest::addColumn<Components>("hsv");
    QTest::newRow("black") << Components { 0, 0, 0 } << Components { 0, 0, 0 };
    QTest::newRow("grey") << Components { 0.5f, 0.5f, 0.5f } << Components { 0, 0, 0.5f };
    QTest::newRow("white") << Components { 1, 1, 1 } << Components { 0, 0, 1 };
    QTest::newRow("red") << Components { 1, 0, 0 } << Components { 0, 1, 1 };
    QTest::newRow("orange") << Components { 1, 0.5f, 0 } << Components { 30, 1, 1 };
    QTest::newRow("yellow") << Components { 1, 1, 0 } << Components { 60, 1, 1 };
    QTest::newRow("green") << Components { 0, 1, 0 } << Components { 120, 1, 1 };
    QTest::newRow("cyan") << Components { 0, 1, 1 } << Components { 180, 1, 1 };
    QTest::newRow("dark blue") << Components { 0, 0, 0.5f } << Components { 240, 1, 0.5f };
    QTest::newRow("pale magenta") << Components { 1, 0.5f, 1 } << Components { 300, 0.5f, 1 };
    QTest::newRow("rose") << Components { 1, 0, 0.5f } << Components { 330, 1, 1 };
}

void tst_ColorManipulator::rgbComesBackAsHsv()
{
    QFETCH(Components, rgb);
    m_picker->setColor(rgb[0], rgb[1], rgb[2]);
    QTEST(hsv(*m_picker), "hsv");
}

void tst_ColorManipulator::componentsAreNotRounded()
{
    m_picker->setColor(0.12345678f, 0.1f, 0.07654321f);
    const auto [hue, saturation, value, unused] = m_picker->getColor();
    Q_UNUSED(unused)
    QCOMPARE(value, 0.12345678f);
    QCOMPARE(saturation, (0.12345678f - 0.07654321f) / 0.12345678f);
    QCOMPARE(hue, 60 * (0.1f - 0.07654321f) / (0.12345678f - 0.07654321f));
}

void tst_ColorManipulator::brighterThanWhiteIsKept()
{
    m_picker->setColor(3, 1.5f, 0);
    QCOMPARE(hsv(*m_picker), Components({ 30, 1, 3 }));
}

void tst_ColorManipulator::notFiniteComponentsCountAsZero()
{
    m_picker->setColor(infinity, std::numeric_limits<float>::quiet_NaN(), 0.5f);
    QCOMPARE(hsv(*m_picker), Components({ 240, 1, 0.5f }));
}

void tst_ColorManipulator::settingTheColorDoesNotSignal()
{
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    m_picker->setColor(1, 0, 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(child<QLineEdit>("hex")->text(), QStringLiteral("#ff0000"));
}

void tst_ColorManipulator::fitsIntoARow()
{
    QVERIFY(m_picker->minimumSizeHint().height() <= m_picker->fontMetrics().height());
    QVERIFY(m_picker->sizeHint().width()
        > m_picker->fontMetrics().horizontalAdvance(QStringLiteral("#ffffff")));
    QCOMPARE(m_picker->focusPolicy(), Qt::WheelFocus);
}

void tst_ColorManipulator::keysOpenThePopup_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_ColorManipulator::keysOpenThePopup()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QTest::keyClick(m_picker, Qt::Key(key), modifiers);
    QVERIFY(popup() && popup()->isVisible());
    QCOMPARE(popup()->parentWidget(), m_picker);
    QCOMPARE(popup()->focusWidget(), child<QLineEdit>("hex"));
}

void tst_ColorManipulator::otherKeysStayWithTheParent_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Down") << int(Qt::Key_Down);
}

void tst_ColorManipulator::otherKeysStayWithTheParent()
{
    QFETCH(int, key);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(m_picker, &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!popup());
}

void tst_ColorManipulator::aLeftClickOpensThePopup()
{
    QTest::mouseClick(m_picker, Qt::RightButton);
    QVERIFY(!popup());
    QTest::mouseClick(m_picker, Qt::LeftButton);
    QVERIFY(popup() && popup()->isVisible());
}

void tst_ColorManipulator::fieldsShowTheColor()
{
    open();
    QCOMPARE(child<QDoubleSpinBox>("HueField")->value(), 150.0);
    QCOMPARE(child<QDoubleSpinBox>("SaturationField")->value(), 0.667);
    QCOMPARE(child<QDoubleSpinBox>("ValueField")->value(), 0.6);
    QCOMPARE(child<QDoubleSpinBox>("RedField")->value(), 0.2);
    QCOMPARE(child<QDoubleSpinBox>("GreenField")->value(), 0.6);
    QCOMPARE(child<QDoubleSpinBox>("BlueField")->value(), 0.4);
    QCOMPARE(child<QLineEdit>("hex")->text(), QStringLiteral("#339966"));
}

void tst_ColorManipulator::aFieldShowsTheTrueNumberBeyondItsRange()
{
    m_picker->setColor(3, 1, -0.5f);
    open();
    QCOMPARE(child<QDoubleSpinBox>("RedField")->value(), 3.0);
    QCOMPARE(child<QDoubleSpinBox>("BlueField")->value(), -0.5);
    m_picker->setColor(1, 1, 0);
    QCOMPARE(child<QDoubleSpinBox>("RedField")->maximum(), 1.0);
}

void tst_ColorManipulator::fieldsSetTheirComponent_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<Components>("hsv");
    QTest::newRow("Hue") << 30.0 << Components { 30, 1, 0.5f };
    QTest::newRow("Saturation") << 0.25 << Components { 120, 0.25f, 0.5f };
    QTest::newRow("Value") << 0.125 << Components { 120, 1, 0.125f };
    QTest::newRow("Red") << 0.5 << Components { 60, 1, 0.5f };
    QTest::newRow("Green") << 0.75 << Components { 120, 1, 0.75f };
    QTest::newRow("Blue") << 0.25 << Components { 150, 1, 0.5f };
}

void tst_ColorManipulator::fieldsSetTheirComponent()
{
    m_picker->setColor(0, 0.5f, 0);
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QFETCH(double, value);
    child<QDoubleSpinBox>(QByteArray(QTest::currentDataTag()) + "Field")->setValue(value);
    QCOMPARE(changed.count(), 1);
    QTEST(hsv(*m_picker), "hsv");
}

void tst_ColorManipulator::slidersSetTheirComponent_data()
{
    QTest::addColumn<Components>("hsv");
    QTest::newRow("Hue") << Components { 180, 1, 0.5f };
    QTest::newRow("Saturation") << Components { 120, 0.5f, 0.5f };
    QTest::newRow("Value") << Components { 120, 1, 0.5f };
    QTest::newRow("Red") << Components { 60, 1, 0.5f };
    QTest::newRow("Green") << Components { 120, 1, 0.5f };
    QTest::newRow("Blue") << Components { 180, 1, 0.5f };
}

void tst_ColorManipulator::slidersSetTheirComponent()
{
    m_picker->setColor(0, 0.5f, 0);
    open();
    auto *slider = child<QSlider>(QByteArray(QTest::currentDataTag()) + "Slider");
    slider->setValue(0);
    slider->setValue(slider->maximum() / 2);
    QTEST(hsv(*m_picker), "hsv");
}

void tst_ColorManipulator::theWheelSetsTheHue()
{
    m_picker->setColor(1, 0, 0);
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    auto *wheel = child<QWidget>("wheel");
    QTest::mouseClick(wheel, Qt::LeftButton, {}, QPoint(5, wheel->height() / 2));
    QVERIFY(changed.count() > 0);
    QVERIFY2(std::abs(m_picker->getColor()[0] - 180) < 2,
        qPrintable(QString::number(m_picker->getColor()[0])));
    QCOMPARE(m_picker->getColor()[1], 1.0f);
}

void tst_ColorManipulator::hueOutlivesGreyAndBlack_data()
{
    QTest::addColumn<QByteArrayList>("fields");
    QTest::newRow("grey") << QByteArrayList { "SaturationField" };
    QTest::newRow("black") << QByteArrayList { "ValueField" };
}

void tst_ColorManipulator::hueOutlivesGreyAndBlack()
{
    m_picker->setColor(0, 0.5f, 0);
    open();
    QFETCH(QByteArrayList, fields);
    auto *field = child<QDoubleSpinBox>(fields.first());
    field->setValue(0);
    field->setValue(1);
    QCOMPARE(m_picker->getColor()[0], 120.0f);
}

void tst_ColorManipulator::typingAHexCodeSetsTheColor()
{
    open();
    QTest::keyClicks(child<QLineEdit>("hex"), "#ff8000");
    QCOMPARE(m_picker->getColor()[1], 1.0f);
    QCOMPARE(qRound(m_picker->getColor()[0]), 30);
    QCOMPARE(child<QDoubleSpinBox>("GreenField")->value(), 0.502);
}

void tst_ColorManipulator::typingIsNotInterrupted()
{
    open();
    auto *hex = child<QLineEdit>("hex");
    QTest::keyClicks(hex, "#f80");
    QCOMPARE(hex->text(), QStringLiteral("#f80"));
    QTest::keyClicks(hex, "042");
    QCOMPARE(hex->text(), QStringLiteral("#f80042"));
    QCOMPARE(child<QDoubleSpinBox>("BlueField")->value(), 0.259);
}

void tst_ColorManipulator::anIncompleteHexCodeIsPutRight()
{
    open();
    auto *hex = child<QLineEdit>("hex");
    QTest::keyClicks(hex, "#12");
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    emit hex->editingFinished();
    QCOMPARE(hex->text(), QStringLiteral("#339966"));
    QCOMPARE(changed.count(), 0);
}

void tst_ColorManipulator::enterAndOthersKeepTheColor_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Return") << int(Qt::Key_Return) << Qt::KeyboardModifiers();
    QTest::newRow("Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers();
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_ColorManipulator::enterAndOthersKeepTheColor()
{
    open();
    child<QDoubleSpinBox>("HueField")->setValue(30);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key(key), modifiers);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_picker->getColor()[0], 30.0f);
}

void tst_ColorManipulator::escapeBringsTheOldColorBackUnrounded()
{
    const Components before = hsv(*m_picker);
    open();
    child<QDoubleSpinBox>("HueField")->setValue(30);
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QTest::keyClick(child<QDoubleSpinBox>("HueField"), Qt::Key_Escape);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(hsv(*m_picker), before);
}

void tst_ColorManipulator::escapeWithoutAChangeDoesNotSignal()
{
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Escape);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!popup()->isVisible());
}

void tst_ColorManipulator::aClickOnTheOldColorTakesItBack()
{
    const Components before = hsv(*m_picker);
    open();
    child<QDoubleSpinBox>("HueField")->setValue(30);
    QTest::mouseClick(child<QWidget>("oldColor"), Qt::LeftButton);
    QCOMPARE(hsv(*m_picker), before);
    QVERIFY(popup()->isVisible());
}

void tst_ColorManipulator::theChosenColorBecomesRecent()
{
    open();
    QVERIFY(!child<QWidget>("recentColors")->isVisible());
    QTest::keyClicks(child<QLineEdit>("hex"), "#ff8000");
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Return);
    QCOMPARE(recentColors(), QVector<QColor>({ QColor("#ff8000") }));
    open();
    QVERIFY(child<QWidget>("recentColors")->isVisible());
}

void tst_ColorManipulator::aColorTakenBackDoesNotBecomeRecent()
{
    open();
    QTest::keyClicks(child<QLineEdit>("hex"), "#ff8000");
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Escape);
    QCOMPARE(recentColors(), QVector<QColor>());
}

void tst_ColorManipulator::recentColorsAreDistinctAndLimited()
{
    for (int i : { 10, 20, 30, 40, 50, 60, 70, 80, 90, 11, 21, 31, 41, 51, 61, 60 }) {
        open();
        QTest::keyClicks(child<QLineEdit>("hex"), QStringLiteral("#0000%1").arg(i));
        QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Return);
    }
    const QVector<QColor> recent = recentColors();
    QCOMPARE(recent.size(), 14);
    QCOMPARE(recent.first(), QColor("#000060"));
    QCOMPARE(recent.count(recent.first()), 1);
    QCOMPARE(recent.last(), QColor("#000020"));
}

void tst_ColorManipulator::aRecentColorIsChosenWithTheKeyboard()
{
    setRecentColors({ Qt::red, Qt::green });
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QTest::keyClick(child<QWidget>("recentColors"), Qt::Key_Right);
    QTest::keyClick(child<QWidget>("recentColors"), Qt::Key_Right);
    QCOMPARE(hsv(*m_picker), Components({ 120, 1, 1 }));
    QCOMPARE(changed.count(), 2);
    QTest::keyClick(child<QWidget>("recentColors"), Qt::Key_Return);
    QVERIFY(!popup()->isVisible());
}

void tst_ColorManipulator::damagedSettingsGiveNoRecentColors()
{
    QSettings().setValue("ColorPicker/recent", QVariantList { "nonsense", 7 });
    open();
    QVERIFY(!child<QWidget>("recentColors")->isVisible());
}

void tst_ColorManipulator::hexCodesAreCopiedAndPasted()
{
    QTest::keySequence(m_picker, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("#339966"));
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QGuiApplication::clipboard()->setText(" #ff0000\n");
    QTest::keySequence(m_picker, QKeySequence::Paste);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(hsv(*m_picker), Components({ 0, 1, 1 }));
}

void tst_ColorManipulator::otherTextIsNotPasted()
{
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QGuiApplication::clipboard()->setText("a text");
    QTest::keySequence(m_picker, QKeySequence::Paste);
    QCOMPARE(changed.count(), 0);
}

void tst_ColorManipulator::thePickerDiesWithItsPopupOpen()
{
    open();
    const QPointer<QWidget> open = popup();
    delete m_picker;
    QVERIFY(!open);
    QVERIFY(!QApplication::activePopupWidget());
}

QTEST_MAIN(tst_ColorManipulator)
#include "tst_colormanipulator.moc"
