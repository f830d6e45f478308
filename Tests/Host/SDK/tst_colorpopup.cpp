#include "kavoPickerFixture.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

class tst_ColorPopup : public QObject, private kavoPickerFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
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
};

void tst_ColorPopup::init()
{
    setUp();
}

void tst_ColorPopup::cleanup()
{
    tearDown();
}

void tst_ColorPopup::fieldsShowTheColor()
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

void tst_ColorPopup::aFieldShowsTheTrueNumberBeyondItsRange()
{
    m_picker->setColor(3, 1, -0.5f);
    open();
    QCOMPARE(child<QDoubleSpinBox>("RedField")->value(), 3.0);
    QCOMPARE(child<QDoubleSpinBox>("BlueField")->value(), -0.5);
    m_picker->setColor(1, 1, 0);
    QCOMPARE(child<QDoubleSpinBox>("RedField")->maximum(), 1.0);
}

void tst_ColorPopup::fieldsSetTheirComponent_data()
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

void tst_ColorPopup::fieldsSetTheirComponent()
{
    m_picker->setColor(0, 0.5f, 0);
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QFETCH(double, value);
    child<QDoubleSpinBox>(QByteArray(QTest::currentDataTag()) + "Field")->setValue(value);
    QCOMPARE(changed.count(), 1);
    QTEST(hsv(*m_picker), "hsv");
}

void tst_ColorPopup::slidersSetTheirComponent_data()
{
    QTest::addColumn<Components>("hsv");
    QTest::newRow("Hue") << Components { 180, 1, 0.5f };
    QTest::newRow("Saturation") << Components { 120, 0.5f, 0.5f };
    QTest::newRow("Value") << Components { 120, 1, 0.5f };
    QTest::newRow("Red") << Components { 60, 1, 0.5f };
    QTest::newRow("Green") << Components { 120, 1, 0.5f };
    QTest::newRow("Blue") << Components { 180, 1, 0.5f };
}

void tst_ColorPopup::slidersSetTheirComponent()
{
    m_picker->setColor(0, 0.5f, 0);
    open();
    auto *slider = child<QSlider>(QByteArray(QTest::currentDataTag()) + "Slider");
    slider->setValue(0);
    slider->setValue(slider->maximum() / 2);
    QTEST(hsv(*m_picker), "hsv");
}

void tst_ColorPopup::theWheelSetsTheHue()
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

void tst_ColorPopup::hueOutlivesGreyAndBlack_data()
{
    QTest::addColumn<QByteArrayList>("fields");
    QTest::newRow("grey") << QByteArrayList { "SaturationField" };
    QTest::newRow("black") << QByteArrayList { "ValueField" };
}

void tst_ColorPopup::hueOutlivesGreyAndBlack()
{
    m_picker->setColor(0, 0.5f, 0);
    open();
    QFETCH(QByteArrayList, fields);
    auto *field = child<QDoubleSpinBox>(fields.first());
    field->setValue(0);
    field->setValue(1);
    QCOMPARE(m_picker->getColor()[0], 120.0f);
}

void tst_ColorPopup::typingAHexCodeSetsTheColor()
{
    open();
    QTest::keyClicks(child<QLineEdit>("hex"), "#ff8000");
    QCOMPARE(m_picker->getColor()[1], 1.0f);
    QCOMPARE(qRound(m_picker->getColor()[0]), 30);
    QCOMPARE(child<QDoubleSpinBox>("GreenField")->value(), 0.502);
}

void tst_ColorPopup::typingIsNotInterrupted()
{
    open();
    auto *hex = child<QLineEdit>("hex");
    QTest::keyClicks(hex, "#f80");
    QCOMPARE(hex->text(), QStringLiteral("#f80"));
    QTest::keyClicks(hex, "042");
    QCOMPARE(hex->text(), QStringLiteral("#f80042"));
    QCOMPARE(child<QDoubleSpinBox>("BlueField")->value(), 0.259);
}

void tst_ColorPopup::anIncompleteHexCodeIsPutRight()
{
    open();
    auto *hex = child<QLineEdit>("hex");
    QTest::keyClicks(hex, "#12");
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    emit hex->editingFinished();
    QCOMPARE(hex->text(), QStringLiteral("#339966"));
    QCOMPARE(changed.count(), 0);
}

void tst_ColorPopup::enterAndOthersKeepTheColor_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Return") << int(Qt::Key_Return) << Qt::KeyboardModifiers();
    QTest::newRow("Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers();
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_ColorPopup::enterAndOthersKeepTheColor()
{
    open();
    child<QDoubleSpinBox>("HueField")->setValue(30);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key(key), modifiers);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_picker->getColor()[0], 30.0f);
}

void tst_ColorPopup::escapeBringsTheOldColorBackUnrounded()
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

void tst_ColorPopup::escapeWithoutAChangeDoesNotSignal()
{
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Escape);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!popup()->isVisible());
}

void tst_ColorPopup::aClickOnTheOldColorTakesItBack()
{
    const Components before = hsv(*m_picker);
    open();
    child<QDoubleSpinBox>("HueField")->setValue(30);
    QTest::mouseClick(child<QWidget>("oldColor"), Qt::LeftButton);
    QCOMPARE(hsv(*m_picker), before);
    QVERIFY(popup()->isVisible());
}

QTEST_MAIN(tst_ColorPopup)
#include "tst_colorpopup.moc"
