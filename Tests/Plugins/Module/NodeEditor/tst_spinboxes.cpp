#include "kavoSampledEditor.h"
#include "kavoTreeRows.h"

#include <kavoTestHost.h>

#include <QAbstractSpinBox>
#include <QStyleOptionSpinBox>
#include <QtTest>

#include <cfloat>
#include <memory>

using namespace kavoTreeRows;

// Typing and stepping in the spin boxes of number rows.
class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theStepFitsTheMagnitude_data();
    void theStepFitsTheMagnitude();
    void theStepFitsANumberTyped_data();
    void theStepFitsANumberTyped();
    void theArrowStepsFromANumberTyped_data();
    void theArrowStepsFromANumberTyped();
    void theStepFitsANumberSetFromElsewhere();
    void aRunOfStepsKeepsItsSize();
    void stepsLeaveNoRoundingNoise();
    void aStepFromUnfinishedTextGoesFromTheOldNumber();
    void escapeTakesBackWhatWasTyped_data();
    void escapeTakesBackWhatWasTyped();
    void lettersAreNotTaken_data();
    void lettersAreNotTaken();
    void pointAndCommaAreTheDecimalPoint_data();
    void pointAndCommaAreTheDecimalPoint();
    void anOpenEditorFollowsItsRow_data();
    void anOpenEditorFollowsItsRow();

private:
    static void clickUpArrow(QWidget *spinBox);

    std::unique_ptr<kavoSampledEditor> m_rows;
};

void tst_SpinBoxes::init()
{
    m_rows = std::make_unique<kavoSampledEditor>();
    m_rows->show();
}

void tst_SpinBoxes::cleanup()
{
    m_rows.reset();
}

void tst_SpinBoxes::clickUpArrow(QWidget *spinBox)
{
    QStyleOptionSpinBox option;
    option.initFrom(spinBox);
    option.subControls = QStyle::SC_All;
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    const QRect arrow = spinBox->style()->subControlRect(
        QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, spinBox);
    QTest::mouseClick(spinBox, Qt::LeftButton, {}, arrow.center());
}

void tst_SpinBoxes::theStepFitsTheMagnitude_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("stepped");
    QTest::newRow("zero") << 0. << 0.1;
    QTest::newRow("one") << 1. << 1.1;
    QTest::newRow("thousandth") << 0.001 << 0.0011;
    QTest::newRow("negative") << -20. << -19.;
    QTest::newRow("huge") << 1e30 << 1.1e30;
    QTest::newRow("largest") << DBL_MAX << DBL_MAX;
}

void tst_SpinBoxes::theStepFitsTheMagnitude()
{
    QFETCH(double, value);
    QFETCH(double, stepped);
    setValue(m_rows->editor(), "real64", value);
    QTest::keyClick(m_rows->open("real64"), Qt::Key_Up);
    QCOMPARE(m_rows->sampler()->real64.getValue(), stepped);
}

void tst_SpinBoxes::theStepFitsANumberTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stepped");
    QTest::newRow("hundred") << "100" << 110.;
    QTest::newRow("tiny") << "1e-7" << 1.1e-7;
    QTest::newRow("huge") << "1e30" << 1.1e30;
}

void tst_SpinBoxes::theStepFitsANumberTyped()
{
    QFETCH(QString, typed);
    QTest::keyClick(m_rows->type("real64", typed), Qt::Key_Up);
    QTEST(m_rows->sampler()->real64.getValue(), "stepped");
    QCOMPARE(m_rows->sampler()->changes, 1);
}

void tst_SpinBoxes::theArrowStepsFromANumberTyped_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("stepped");
    QTest::newRow("real") << "real32"
                          << "110";
    QTest::newRow("int") << "int32"
                         << "101";
}

void tst_SpinBoxes::theArrowStepsFromANumberTyped()
{
    QFETCH(QString, field);
    clickUpArrow(m_rows->type(field, "100"));
    QTEST(text(m_rows->editor(), field), "stepped");
}

void tst_SpinBoxes::theStepFitsANumberSetFromElsewhere()
{
    QWidget *spinBox = m_rows->open("real64");
    QTest::keyClick(spinBox, Qt::Key_Up);
    setValue(m_rows->editor(), "real64", 1e30);
    QTest::keyClick(spinBox, Qt::Key_Up);
    QCOMPARE(m_rows->sampler()->real64.getValue(), 1.1e30);
}

void tst_SpinBoxes::aRunOfStepsKeepsItsSize()
{
    setValue(m_rows->editor(), "real64", 1);
    QWidget *spinBox = m_rows->open("real64");
    for (const char *shown : { "0.9", "0.8", "0.7" }) {
        QTest::keyClick(spinBox, Qt::Key_Down);
        QCOMPARE(text(m_rows->editor(), "real64"), QString(shown));
    }
}

void tst_SpinBoxes::stepsLeaveNoRoundingNoise()
{
    QWidget *spinBox = m_rows->open("real64");
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(spinBox, Qt::Key_Up);
    QCOMPARE(text(m_rows->editor(), "real64"), QString("0.3"));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(spinBox, Qt::Key_Down);
    QCOMPARE(text(m_rows->editor(), "real64"), QString("0"));
}

void tst_SpinBoxes::aStepFromUnfinishedTextGoesFromTheOldNumber()
{
    setValue(m_rows->editor(), "real64", 5);
    QTest::keyClick(m_rows->type("real64", "2e"), Qt::Key_Up);
    QCOMPARE(m_rows->sampler()->real64.getValue(), 5.1);
}

void tst_SpinBoxes::escapeTakesBackWhatWasTyped_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field : { "real32", "int32", "uint32" })
        QTest::newRow(field) << field;
}

void tst_SpinBoxes::escapeTakesBackWhatWasTyped()
{
    QFETCH(QString, field);
    const QPointer<QWidget> spinBox = m_rows->type(field, "100");
    m_rows->press(spinBox, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!spinBox);
    QCOMPARE(m_rows->sampler()->changes, 0);
    QCOMPARE(text(m_rows->editor(), field), QString("0"));
}

void tst_SpinBoxes::lettersAreNotTaken_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("taken");
    QTest::newRow("real") << "real32"
                          << "1.5";
    QTest::newRow("int") << "int32"
                         << "15";
    QTest::newRow("unsigned") << "uint8"
                              << "15";
}

void tst_SpinBoxes::lettersAreNotTaken()
{
    QFETCH(QString, field);
    const auto *spinBox = qobject_cast<QAbstractSpinBox *>(m_rows->type(field, "x1y.z5-"));
    QTEST(spinBox->text(), "taken");
}

void tst_SpinBoxes::pointAndCommaAreTheDecimalPoint_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("point, English") << QLocale::c() << "0.5";
    QTest::newRow("comma, English") << QLocale::c() << "0,5";
    QTest::newRow("point, German") << german << "0.5";
    QTest::newRow("comma, German") << german << "0,5";
}

void tst_SpinBoxes::pointAndCommaAreTheDecimalPoint()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    m_rows->editor().setLocale(locale);
    m_rows->press(m_rows->type("real32", typed));
    QCOMPARE(m_rows->sampler()->real32.getValue(), 0.5f);
}

void tst_SpinBoxes::anOpenEditorFollowsItsRow_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("real") << "real32" << QVariant(1e-7) << "1e-07";
    QTest::newRow("int") << "int32" << QVariant(-7) << "-7";
}

void tst_SpinBoxes::anOpenEditorFollowsItsRow()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    const auto *spinBox = qobject_cast<QAbstractSpinBox *>(m_rows->open(field));
    setValue(m_rows->editor(), field, value);
    QTEST(spinBox->text(), "shown");
    setValue(m_rows->editor(), "int16", 5);
    QTEST(spinBox->text(), "shown");
    QCOMPARE(m_rows->sampler()->changes, 2);
}

KAVO_TEST_MAIN(tst_SpinBoxes)
#include "tst_spinboxes.moc"
