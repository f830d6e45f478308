#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <kavoTestHost.h>

#include <QDoubleSpinBox>
#include <QTreeWidget>
#include <QtTest>

#include <cfloat>
#include <climits>
#include <cmath>

using namespace kavoTreeRows;

class TestNumbers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aRowShowsTheFieldsNumber_data();
    void aRowShowsTheFieldsNumber();
    void anEditWithoutChangeWritesNothing_data();
    void anEditWithoutChangeWritesNothing();
    void whatIsTypedIsReadBack_data();
    void whatIsTypedIsReadBack();
    void aCommaLocaleShowsAndReadsCommas();
    void numbersOutOfRangeAreNotTaken_data();
    void numbersOutOfRangeAreNotTaken();
    void rangesEndWithTheFieldType_data();
    void rangesEndWithTheFieldType();
    void theStepFitsTheMagnitude_data();
    void theStepFitsTheMagnitude();
    void stepsLeaveNoRoundingNoise();
    void numbersThatAreNotFiniteAreText_data();
    void numbersThatAreNotFiniteAreText();
    void lettersAreNotTaken();
    void pointAndCommaAreTheDecimalPoint_data();
    void pointAndCommaAreTheDecimalPoint();
    void boxesShowTheirNumbersToTheLastDigit();
    void anOpenEditorFollowsItsRow();

private:
    static void addNumbers();
    osg::Field &field(const QString &name);
    QByteArray textOf(const QString &name);
    void show();
    void finish(QWidget *spinBox);

    kavoFCEditorWidget *m_editor = nullptr;
    osg::FieldSamplerPtr m_sampler;
};

void TestNumbers::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestNumbers::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
}

void TestNumbers::cleanup()
{
    delete m_editor;
    osg::subRefCP(m_sampler);
    QLocale::setDefault(QLocale::c());
}

// Opens an editor, so that the rows are on the screen.
void TestNumbers::show()
{
    m_editor->setFC("sampler", m_sampler);
    m_editor->resize(400, 600);
    m_editor->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_editor));
}

osg::Field &TestNumbers::field(const QString &name)
{
    osg::FieldContainer &container = *m_sampler;
    return *container.getField(name.toUtf8().constData());
}

QByteArray TestNumbers::textOf(const QString &name)
{
    std::string text;
    field(name).getValueByStr(text);
    return QByteArray::fromStdString(text);
}

void TestNumbers::finish(QWidget *spinBox)
{
    QTest::keyClick(spinBox, Qt::Key_Return);
    QCoreApplication::processEvents();
}

// Field, its value as text, and what the row shows.
void TestNumbers::addNumbers()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("thousandth") << "real32" << QByteArray("0.001") << "0.001";
    QTest::newRow("tiny") << "real32" << QByteArray("1e-7") << "1e-07";
    QTest::newRow("tinier than 13 decimals") << "real32" << QByteArray("1.25e-20") << "1.25e-20";
    QTest::newRow("huge") << "real32" << QByteArray("3.4e38") << "3.4e+38";
    QTest::newRow("lowest") << "real32" << QByteArray("-3.40282e38") << "-3.40282e+38";
    QTest::newRow("third") << "real32" << QByteArray("0.333333333") << "0.3333333";
    QTest::newRow("one") << "real32" << QByteArray("1") << "1";
    QTest::newRow("thousands") << "real32" << QByteArray("12345.5") << "12345.5";
    QTest::newRow("zero") << "real32" << QByteArray("0") << "0";
    QTest::newRow("double") << "real64" << QByteArray("1e300") << "1e+300";
    QTest::newRow("tiny double") << "real64" << QByteArray("-1e-300") << "-1e-300";
    QTest::newRow("past int") << "real64" << QByteArray("2147483648") << "2147484000";
    QTest::newRow("time") << "time" << QByteArray("1.5") << "1.5";
    QTest::newRow("past int, unsigned") << "uint32" << QByteArray("2147483648") << "-2147483648";
    QTest::newRow("all bits") << "uint32" << QByteArray("4294967295") << "-1";
    QTest::newRow("lowest int") << "int32" << QByteArray("-2147483648") << "-2147483648";
    QTest::newRow("highest int") << "int32" << QByteArray("2147483647") << "2147483647";
    QTest::newRow("lowest byte") << "int8" << QByteArray("-128") << "-128";
    QTest::newRow("highest short") << "uint16" << QByteArray("65535") << "65535";
}

void TestNumbers::aRowShowsTheFieldsNumber_data()
{
    addNumbers();
}

void TestNumbers::aRowShowsTheFieldsNumber()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, value);
    field(name).pushValueByStr(value.constData());
    m_editor->setFC("sampler", m_sampler);
    QTEST(text(*m_editor, name), "shown");
}

void TestNumbers::anEditWithoutChangeWritesNothing_data()
{
    addNumbers();
}

void TestNumbers::anEditWithoutChangeWritesNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, value);
    QFETCH(QString, shown);
    field(name).pushValueByStr(value.constData());
    const QByteArray before = textOf(name);
    show();
    auto *spinBox = qobject_cast<QAbstractSpinBox *>(edit(*m_editor, name));
    QVERIFY(spinBox);
    QCOMPARE(spinBox->text(), shown);
    finish(spinBox);
    QCOMPARE(m_sampler->changes, 0);
    QCOMPARE(textOf(name), before);
    QCOMPARE(text(*m_editor, name), shown);
}

void TestNumbers::whatIsTypedIsReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("thousandth") << "real32"
                                << "0.001" << QByteArray("1.000000e-03");
    QTest::newRow("tiny") << "real32"
                          << "1e-7" << QByteArray("1.000000e-07");
    QTest::newRow("tinier") << "real32"
                            << "1.25e-20" << QByteArray("1.250000e-20");
    QTest::newRow("huge") << "real32"
                          << "3.4e38" << QByteArray("3.400000e+38");
    QTest::newRow("double") << "real64"
                            << "-1e300" << QByteArray("-1.000000e+300");
    QTest::newRow("past int") << "real64"
                              << "2147483648" << QByteArray("2.147484e+09");
    QTest::newRow("minus one, unsigned") << "uint32"
                                         << "-1" << QByteArray("4294967295");
    QTest::newRow("lowest int, unsigned") << "uint32"
                                          << "-2147483648" << QByteArray("2147483648");
    QTest::newRow("lowest int") << "int32"
                                << "-2147483648" << QByteArray("-2147483648");
}

void TestNumbers::whatIsTypedIsReadBack()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    show();
    QWidget *spinBox = edit(*m_editor, name);
    QVERIFY(spinBox);
    QTest::keyClick(spinBox, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spinBox, typed);
    finish(spinBox);
    QTEST(textOf(name), "written");
    m_editor->setFC("sampler", m_sampler);
    QCOMPARE(m_sampler->changes, 1);
}

void TestNumbers::aCommaLocaleShowsAndReadsCommas()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    delete m_editor;
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_sampler->real32.setValue(1234.5f);
    m_sampler->real64.setValue(1e-7);
    show();
    QCOMPARE(text(*m_editor, "real32"), QString("1234,5"));
    QCOMPARE(text(*m_editor, "real64"), QString("1e-07"));
    QWidget *spinBox = edit(*m_editor, "real32");
    QTest::keyClick(spinBox, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spinBox, "0,001");
    finish(spinBox);
    QCOMPARE(m_sampler->real32.getValue(), 0.001f);
    QCOMPARE(text(*m_editor, "real32"), QString("0,001"));
}

void TestNumbers::numbersOutOfRangeAreNotTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::newRow("past Real32") << "real32"
                                 << "1e39";
    QTest::newRow("past Real64") << "real64"
                                 << "1e400";
    QTest::newRow("unfinished") << "real32"
                                << "2e";
}

void TestNumbers::numbersOutOfRangeAreNotTaken()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    show();
    QWidget *spinBox = edit(*m_editor, name);
    QTest::keyClick(spinBox, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spinBox, typed);
    finish(spinBox);
    QCOMPARE(m_sampler->changes, 0);
    QCOMPARE(text(*m_editor, name), QString("0"));
}

void TestNumbers::rangesEndWithTheFieldType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("int8") << "int8" << -128. << 127.;
    QTest::newRow("uint8") << "uint8" << 0. << 255.;
    QTest::newRow("int16") << "int16" << -32768. << 32767.;
    QTest::newRow("uint16") << "uint16" << 0. << 65535.;
    QTest::newRow("int32") << "int32" << double(INT_MIN) << double(INT_MAX);
    QTest::newRow("uint32") << "uint32" << double(INT_MIN) << double(INT_MAX);
    QTest::newRow("real32") << "real32" << -double(FLT_MAX) << double(FLT_MAX);
    QTest::newRow("real64") << "real64" << -DBL_MAX << DBL_MAX;
    QTest::newRow("time") << "time" << -DBL_MAX << DBL_MAX;
}

void TestNumbers::rangesEndWithTheFieldType()
{
    QFETCH(QString, name);
    m_editor->setFC("sampler", m_sampler);
    const auto &variant = dynamic_cast<QtVariantProperty &>(*row(*m_editor, name));
    QTEST(variant.attributeValue("minimum").toDouble(), "minimum");
    QTEST(variant.attributeValue("maximum").toDouble(), "maximum");
}

void TestNumbers::theStepFitsTheMagnitude_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("stepped");
    QTest::newRow("zero") << 0. << 0.1;
    QTest::newRow("one") << 1. << 1.1;
    QTest::newRow("thousandth") << 0.001 << 0.0011;
    QTest::newRow("negative") << -20. << -19.;
    QTest::newRow("huge") << 1e30 << 1.1e30;
}

void TestNumbers::theStepFitsTheMagnitude()
{
    QFETCH(double, value);
    m_sampler->real64.setValue(value);
    show();
    QTest::keyClick(edit(*m_editor, "real64"), Qt::Key_Up);
    QTEST(m_sampler->real64.getValue(), "stepped");
}

void TestNumbers::stepsLeaveNoRoundingNoise()
{
    show();
    QWidget *spinBox = edit(*m_editor, "real64");
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(spinBox, Qt::Key_Up);
    QCOMPARE(text(*m_editor, "real64"), QString("0.3"));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(spinBox, Qt::Key_Down);
    QCOMPARE(text(*m_editor, "real64"), QString("0"));
}

void TestNumbers::numbersThatAreNotFiniteAreText_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : { "inf", "-inf", "nan" })
        QTest::newRow(value) << QByteArray(value);
}

void TestNumbers::numbersThatAreNotFiniteAreText()
{
    QFETCH(QByteArray, value);
    field("real32").pushValueByStr(value.constData());
    show();
    QCOMPARE(text(*m_editor, "real32").toUtf8(), QByteArray(textOf("real32")));
    finish(edit(*m_editor, "real32"));
    QCOMPARE(m_sampler->changes, 0);
    setValue(*m_editor, "real32", "2.5");
    QCOMPARE(m_sampler->real32.getValue(), 2.5f);
}

void TestNumbers::lettersAreNotTaken()
{
    show();
    auto *spinBox = qobject_cast<QDoubleSpinBox *>(edit(*m_editor, "real32"));
    QTest::keyClick(spinBox, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spinBox, "x1y.z5");
    QCOMPARE(spinBox->text(), QString("1.5"));
}

void TestNumbers::pointAndCommaAreTheDecimalPoint_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("point, English") << QLocale::c() << "0.5";
    QTest::newRow("comma, English") << QLocale::c() << "0,5";
    QTest::newRow("point, German") << german << "0.5";
    QTest::newRow("comma, German") << german << "0,5";
}

void TestNumbers::pointAndCommaAreTheDecimalPoint()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    show();
    QWidget *spinBox = edit(*m_editor, "real32");
    spinBox->setLocale(locale);
    QTest::keyClick(spinBox, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spinBox, typed);
    finish(spinBox);
    QCOMPARE(m_sampler->real32.getValue(), 0.5f);
}

void TestNumbers::boxesShowTheirNumbersToTheLastDigit()
{
    const QtProperty *box = m_editor->createPropertyItem(
        "bounds", "SFBoxVolume", "1.000000e-07 -3.400000e+38 0.1 nan 16777216 -1.234567e-20");
    QStringList texts;
    for (const QtProperty *sub : box->subProperties())
        texts.append(sub->valueText());
    QCOMPARE(
        texts, QStringList({ "1e-07", "-3.4e+38", "0.1", "nan", "16777216", "-1.234567e-20" }));
}

void TestNumbers::anOpenEditorFollowsItsRow()
{
    show();
    auto *spinBox = qobject_cast<QDoubleSpinBox *>(edit(*m_editor, "real32"));
    setValue(*m_editor, "real32", 1e-7);
    QCOMPARE(spinBox->value(), 1e-7);
    setValue(*m_editor, "real64", 5.0);
    QCOMPARE(spinBox->value(), 1e-7);
    QCOMPARE(m_sampler->changes, 2);
}

KAVO_TEST_MAIN(TestNumbers)
#include "tst_numbers.moc"
