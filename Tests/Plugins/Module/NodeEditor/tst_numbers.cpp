#include "kavoSampledEditor.h"
#include "kavoTreeRows.h"

#include <kavoTestHost.h>

#include <QAbstractSpinBox>
#include <QtTest>

#include <cfloat>
#include <climits>
#include <map>
#include <memory>

using namespace kavoTreeRows;

// Number rows and their editors, with a decimal point and with a decimal comma.
class tst_Numbers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup();
    void aRowShowsTheFieldsNumber_data();
    void aRowShowsTheFieldsNumber();
    void anEditWithoutChangeWritesNothing_data();
    void anEditWithoutChangeWritesNothing();
    void whatIsTypedIsReadBack_data();
    void whatIsTypedIsReadBack();
    void numbersOutOfRangeAreNotTaken_data();
    void numbersOutOfRangeAreNotTaken();
    void rangesEndWithTheFieldType_data();
    void rangesEndWithTheFieldType();
    void numbersThatAreNotFiniteAreText_data();
    void numbersThatAreNotFiniteAreText();
    void boxesShowTheirNumbersToTheLastDigit();

private:
    static void addNumbers();
    static QString inLocale(QString number);
    double valueOf(const QString &name);

    std::unique_ptr<kavoSampledEditor> m_rows;
};

void tst_Numbers::initTestCase_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("decimal point") << QLocale::c();
    QTest::newRow("decimal comma") << QLocale(QLocale::German, QLocale::Germany);
}

void tst_Numbers::init()
{
    QFETCH_GLOBAL(QLocale, locale);
    QLocale::setDefault(locale);
    m_rows = std::make_unique<kavoSampledEditor>();
}

void tst_Numbers::cleanup()
{
    m_rows.reset();
    QLocale::setDefault(QLocale::c());
}

QString tst_Numbers::inLocale(QString number)
{
    return number.replace('.', QLocale().decimalPoint());
}

double tst_Numbers::valueOf(const QString &name)
{
    const osg::FieldSampler &sampler = *m_rows->sampler();
    const std::map<QString, double> values {
        { "real32", sampler.real32.getValue() },
        { "real64", sampler.real64.getValue() },
        { "int32", sampler.int32.getValue() },
        { "uint32", sampler.uint32.getValue() },
        { "uint8", sampler.uint8.getValue() },
    };
    return values.at(name);
}

// Adds rows of field name, value as text, and the text shown with a decimal point.
void tst_Numbers::addNumbers()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("shown");
    const auto add = [](const char *row, const char *name, const char *value, const char *shown) {
        QTest::newRow(row) << name << QByteArray(value) << shown;
    };
    add("thousandth", "real32", "0.001", "0.001");
    add("tiny", "real32", "1e-7", "1e-07");
    add("tinier than 13 decimals", "real32", "1.25e-20", "1.25e-20");
    add("huge", "real32", "3.4e38", "3.4e+38");
    add("lowest", "real32", "-3.40282e38", "-3.40282e+38");
    add("third", "real32", "0.333333333", "0.3333333");
    add("one", "real32", "1", "1");
    add("thousands", "real32", "12345.5", "12345.5");
    add("zero", "real32", "0", "0");
    add("double", "real64", "1e300", "1e+300");
    add("tiny double", "real64", "-1e-300", "-1e-300");
    add("past int", "real64", "2147483648", "2147484000");
    add("time", "time", "1.5", "1.5");
    add("past int, unsigned", "uint32", "2147483648", "-2147483648");
    add("all bits", "uint32", "4294967295", "-1");
    add("lowest int", "int32", "-2147483648", "-2147483648");
    add("highest int", "int32", "2147483647", "2147483647");
    add("lowest byte", "int8", "-128", "-128");
    add("highest short", "uint16", "65535", "65535");
}

void tst_Numbers::aRowShowsTheFieldsNumber_data()
{
    addNumbers();
}

void tst_Numbers::aRowShowsTheFieldsNumber()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, value);
    QFETCH(QString, shown);
    m_rows->field(name).pushValueByStr(value.constData());
    m_rows->show();
    QCOMPARE(text(m_rows->editor(), name), inLocale(shown));
}

void tst_Numbers::anEditWithoutChangeWritesNothing_data()
{
    addNumbers();
}

void tst_Numbers::anEditWithoutChangeWritesNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, value);
    QFETCH(QString, shown);
    m_rows->field(name).pushValueByStr(value.constData());
    const QByteArray before = m_rows->textOf(name);
    m_rows->show();
    auto *spinBox = qobject_cast<QAbstractSpinBox *>(m_rows->open(name));
    QVERIFY(spinBox);
    QCOMPARE(spinBox->text(), inLocale(shown));
    m_rows->press(spinBox);
    QCOMPARE(m_rows->sampler()->changes, 0);
    QCOMPARE(m_rows->textOf(name), before);
    QCOMPARE(text(m_rows->editor(), name), inLocale(shown));
}

void tst_Numbers::whatIsTypedIsReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    const auto add
        = [](const char *row, const char *name, const char *typed, double value,
              const char *shown) { QTest::newRow(row) << name << typed << value << shown; };
    add("thousandth", "real32", "0.001", 0.001f, "0.001");
    add("tiny", "real32", "1e-7", 1e-7f, "1e-07");
    add("tinier", "real32", "1.25e-20", 1.25e-20f, "1.25e-20");
    add("huge", "real32", "3.4e38", 3.4e38f, "3.4e+38");
    add("double", "real64", "-1e300", -1e300, "-1e+300");
    add("all digits", "real64", "0.12345678901234566", 0.12345678901234566, "0.1234568");
    add("past int", "real64", "2147483648", 2147483648., "2147484000");
    add("minus one, unsigned", "uint32", "-1", 4294967295., "-1");
    add("all bits, unsigned", "uint32", "4294967295", 4294967295., "-1");
    add("lowest int, unsigned", "uint32", "-2147483648", 2147483648., "-2147483648");
    add("past int, unsigned", "uint32", "2147483648", 2147483648., "-2147483648");
    add("lowest int", "int32", "-2147483648", -2147483648., "-2147483648");
}

// The library's text has seven digits, so a row made from it shows no more. QCOMPARE would treat
// all tiny numbers as zero.
void tst_Numbers::whatIsTypedIsReadBack()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    m_rows->show();
    m_rows->press(m_rows->type(name, inLocale(typed)));
    QFETCH(double, value);
    QVERIFY2(valueOf(name) == value, qPrintable(QString::number(valueOf(name))));
    QCOMPARE(m_rows->sampler()->changes, 1);
    QFETCH(QString, shown);
    m_rows->show();
    QCOMPARE(text(m_rows->editor(), name), inLocale(shown));
}

void tst_Numbers::numbersOutOfRangeAreNotTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    const auto add = [](const char *row, const char *name, const char *typed) {
        QTest::newRow(row) << name << typed;
    };
    add("past Real32", "real32", "1e39");
    add("past Real64", "real64", "1e400");
    add("unfinished", "real32", "2e");
    add("past UInt8", "uint8", "300");
    add("past Int32", "int32", "2147483648");
    add("past UInt32", "uint32", "4294967296");
    add("below Int32", "uint32", "-2147483649");
}

void tst_Numbers::numbersOutOfRangeAreNotTaken()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    m_rows->show();
    m_rows->press(m_rows->type(name, typed));
    QCOMPARE(m_rows->sampler()->changes, 0);
    QCOMPARE(text(m_rows->editor(), name), QString("0"));
}

void tst_Numbers::rangesEndWithTheFieldType_data()
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

void tst_Numbers::rangesEndWithTheFieldType()
{
    QFETCH(QString, name);
    const auto &variant = dynamic_cast<QtVariantProperty &>(*row(m_rows->editor(), name));
    QTEST(variant.attributeValue("minimum").toDouble(), "minimum");
    QTEST(variant.attributeValue("maximum").toDouble(), "maximum");
}

void tst_Numbers::numbersThatAreNotFiniteAreText_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : { "inf", "-inf", "nan" })
        QTest::newRow(value) << QByteArray(value);
}

void tst_Numbers::numbersThatAreNotFiniteAreText()
{
    QFETCH(QByteArray, value);
    m_rows->field("real32").pushValueByStr(value.constData());
    m_rows->show();
    QCOMPARE(text(m_rows->editor(), "real32").toUtf8(), m_rows->textOf("real32"));
    m_rows->press(m_rows->open("real32"));
    QCOMPARE(m_rows->sampler()->changes, 0);
    setValue(m_rows->editor(), "real32", "2.5");
    QCOMPARE(m_rows->sampler()->real32.getValue(), 2.5f);
}

void tst_Numbers::boxesShowTheirNumbersToTheLastDigit()
{
    const QtProperty *box = m_rows->editor().createPropertyItem(
        "bounds", "SFBoxVolume", "1.000000e-07 -3.400000e+38 0.1 nan 16777216 -1.234567e-20");
    QStringList texts;
    for (const QtProperty *sub : box->subProperties())
        texts.append(sub->valueText());
    QCOMPARE(texts,
        QStringList({ "1e-07", inLocale("-3.4e+38"), inLocale("0.1"), "nan", "16777216",
            inLocale("-1.234567e-20") }));
}

KAVO_TEST_MAIN(tst_Numbers)
#include "tst_numbers.moc"
