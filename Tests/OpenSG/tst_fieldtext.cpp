#include "NotInStock.h"

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <cstdlib>
#include <memory>

/// Every row of data/fieldtext.json is a field type, the texts pushed into a fresh field and the
/// text that the field then gives. The rest of the slots are the rules behind the rows. All of it
/// runs twice: in the "C" locale and in one with a decimal comma.
class tst_FieldText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void initTestCase();
    void init();
    void theLocaleOfTheProcessIsInForce();
    void pushedTextsGiveTheText_data();
    void pushedTextsGiveTheText();
    void aSingleFieldReplacesTheString();
    void aMultiFieldAppendsToTheString();
    void anIndexPastTheEndLeavesTheStringAlone();
    void anUnreadableBoolAppendsFalseToAList();
    void aSphereVolumeWritesTheYOfItsCenterTwice();
    void fourNumbersMakeASphere();
    void bracketsAndCommasCountAsBlanksInAVolume();
    void aFailedReadLeavesTheVolumeValidAndNotEmpty();
    void aMatrixTextOfBlanksIsZero();
    void aMissingAlphaIsZero();
    void realsBeyondTheRangeAreInfiniteOrZero();
    void aHexadecimalRealIsRead();
    void anIntegerBeyondSixtyFourBitsSaturatesBeforeItWraps();
    void noTextIsLikeAnEmptyText_data();
    void noTextIsLikeAnEmptyText();
    void aTextlessTypeLogsAndLeavesTheStringAlone();
    void aReadNumberWritesTheSameText_data();
    void aReadNumberWritesTheSameText();

private:
    QTemporaryDir m_localeFolder;
};

namespace {

std::unique_ptr<osg::Field> fieldOf(const char *typeName)
{
    return std::unique_ptr<osg::Field>(osg::FieldFactory::the().createField(typeName));
}

QString textOf(const osg::Field &field)
{
    std::string text;
    return QString::fromStdString(field.getValueByStr(text));
}

template <class FieldType> QString textAfter(std::initializer_list<const char *> pushed)
{
    FieldType field;
    for (const char *text : pushed) {
        field.pushValueByStr(text);
    }
    return textOf(field);
}

// Machines differ in what locales they have, so the test compiles one of its own.
bool makeCommaLocale(const QString &folder)
{
    QFile source(folder + "/comma.src");
    if (!source.open(QIODevice::WriteOnly)) {
        return false;
    }
    source.write("LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\ngrouping -1\n"
                 "END LC_NUMERIC\n");
    source.close();
    QProcess compiler;
    compiler.start("localedef", { "-c", "-i", source.fileName(), folder + "/comma" });
    compiler.waitForFinished();
    qputenv("LOCPATH", folder.toLocal8Bit());
    return std::setlocale(LC_NUMERIC, "comma");
}

} // namespace

void tst_FieldText::initTestCase_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::newRow("C") << QByteArray("C");
    if (makeCommaLocale(m_localeFolder.path())) {
        QTest::newRow("comma") << QByteArray("comma");
    } else {
        qWarning("No locale with a decimal comma could be made; only \"C\" is tested.");
    }
}

void tst_FieldText::initTestCase()
{
    osg::osgLog().setLogType(osg::LOG_NONE, true);
}

void tst_FieldText::init()
{
    QFETCH_GLOBAL(QByteArray, locale);
    if (locale != "C") {
        NOT_IN_STOCK("stock 1.8 reads and writes numbers by the locale");
    }
    QVERIFY(std::setlocale(LC_NUMERIC, locale.constData()));
}

void tst_FieldText::theLocaleOfTheProcessIsInForce()
{
    QFETCH_GLOBAL(QByteArray, locale);
    QCOMPARE(std::strtod("1,5", nullptr), locale == "comma" ? 1.5 : 1.);
}

void tst_FieldText::pushedTextsGiveTheText_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QStringList>("pushed");
    QTest::addColumn<QString>("text");

    QFile file(QFINDTESTDATA("data/fieldtext.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll()).array();
    QCOMPARE(rows.size(), 1029);
    for (int i = 0; i < rows.size(); ++i) {
        const QJsonObject row = rows[i].toObject();
        const QString field = row["field"].toString();
        const QStringList pushed = row["push"].toVariant().toStringList();
        QTest::addRow("%d %s %s", i, qPrintable(field), qPrintable(pushed.join('|')))
            << field << pushed << row["text"].toString();
    }
}

void tst_FieldText::pushedTextsGiveTheText()
{
    QFETCH(QString, field);
    QFETCH(QStringList, pushed);
    const auto created = fieldOf(qPrintable(field));
    QVERIFY(created);
    for (const QString &text : pushed) {
        created->pushValueByStr(text.toUtf8().constData());
    }
    QTEST(textOf(*created), "text");
}

void tst_FieldText::aSingleFieldReplacesTheString()
{
    std::string text = "before";
    osg::SFInt32(7).getValueByStr(text);
    QCOMPARE(text, std::string("7"));
}

void tst_FieldText::aMultiFieldAppendsToTheString()
{
    osg::MFInt32 field;
    field.push_back(1);
    field.push_back(2);
    std::string text = "before ";
    QCOMPARE(field.getValueByStr(text), std::string("before 1, 2"));
    QCOMPARE(field.getValueByStr(text, osg::UInt32(1)), std::string("before 1, 22"));
}

void tst_FieldText::anIndexPastTheEndLeavesTheStringAlone()
{
    std::string text = "before";
    osg::SFInt32(7).getValueByStr(text, osg::UInt32(1));
    osg::MFInt32(3).getValueByStr(text, osg::UInt32(3));
    QCOMPARE(text, std::string("before"));
}

void tst_FieldText::anUnreadableBoolAppendsFalseToAList()
{
    NOT_IN_STOCK("stock 1.8 appends what happens to be in memory");
    QCOMPARE(textAfter<osg::MFBool>({ "true", "yes" }), QString("TRUE, FALSE"));
}

void tst_FieldText::aSphereVolumeWritesTheYOfItsCenterTwice()
{
    osg::SFDynamicVolume field;
    field.pushValueByStr("1 2 3 4");
    QCOMPARE(textOf(field), QString("1.000000e+00 2.000000e+00 2.000000e+00 4.000000e+00"));
}

void tst_FieldText::fourNumbersMakeASphere()
{
    NOT_IN_STOCK("stock 1.8 may pick up leftovers of an earlier text");
    osg::SFDynamicVolume field;
    field.pushValueByStr("1 2 3 4");
    QCOMPARE(field.getValue().getType(), osg::DynamicVolume::SPHERE_VOLUME);
    field.pushValueByStr("1 2 3 4 5");
    QCOMPARE(field.getValue().getType(), osg::DynamicVolume::BOX_VOLUME);
    QCOMPARE(textOf(field), textAfter<osg::SFDynamicVolume>({ "" }));
}

void tst_FieldText::bracketsAndCommasCountAsBlanksInAVolume()
{
    QCOMPARE(textAfter<osg::SFDynamicVolume>({ "[0,0,0] [1 2 3] 9" }),
        textAfter<osg::SFDynamicVolume>({ "0 0 0 1 2 3" }));
}

void tst_FieldText::aFailedReadLeavesTheVolumeValidAndNotEmpty()
{
    osg::SFDynamicVolume field;
    QVERIFY(field.getValue().isEmpty());
    field.pushValueByStr("abc");
    QVERIFY(field.getValue().isValid());
    QVERIFY(!field.getValue().isEmpty());
}

void tst_FieldText::aMatrixTextOfBlanksIsZero()
{
    osg::SFMatrix field;
    field.pushValueByStr("  ");
    QCOMPARE(field.getValue().det(), 0.f);
    QVERIFY(field.getValue() != osg::Matrix::identity());
    field.pushValueByStr("");
    QCOMPARE(field.getValue(), osg::Matrix::identity());
}

void tst_FieldText::aMissingAlphaIsZero()
{
    osg::SFColor4f field(osg::Color4f(1, 1, 1, 1));
    field.pushValueByStr("1 1 1");
    QCOMPARE(field.getValue().alpha(), 0.f);
}

void tst_FieldText::realsBeyondTheRangeAreInfiniteOrZero()
{
    QCOMPARE(textAfter<osg::SFReal32>({ "-1e39" }), QString("-inf"));
    QCOMPARE(textAfter<osg::SFReal32>({ "1e-60" }), QString("0.000000e+00"));
    QCOMPARE(textAfter<osg::SFReal64>({ "1e400" }), QString("inf"));
}

void tst_FieldText::aHexadecimalRealIsRead()
{
    QCOMPARE(textAfter<osg::SFReal32>({ "0x1.8p1" }), QString("3.000000e+00"));
}

void tst_FieldText::anIntegerBeyondSixtyFourBitsSaturatesBeforeItWraps()
{
    QCOMPARE(textAfter<osg::SFInt64>({ "99999999999999999999" }), QString("9223372036854775807"));
    QCOMPARE(textAfter<osg::SFInt32>({ "99999999999999999999" }), QString("-1"));
    QCOMPARE(textAfter<osg::SFUInt64>({ "99999999999999999999" }), QString("18446744073709551615"));
}

void tst_FieldText::noTextIsLikeAnEmptyText_data()
{
    QTest::addColumn<QByteArray>("typeName");

    for (const char *name : { "SFString", "MFString", "SFInt32", "SFReal64", "SFBool", "SFVec3f",
             "SFColor4f", "SFMatrix", "SFQuaternion", "SFDynamicVolume" }) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void tst_FieldText::noTextIsLikeAnEmptyText()
{
    QFETCH(QByteArray, typeName);
    const auto field = fieldOf(typeName.constData());
    const auto other = fieldOf(typeName.constData());
    field->pushValueByStr(nullptr);
    other->pushValueByStr("");
    std::string text;
    std::string expected;
    QCOMPARE(field->getValueByStr(text), other->getValueByStr(expected));
}

void tst_FieldText::aTextlessTypeLogsAndLeavesTheStringAlone()
{
    osg::osgLog().setLogType(osg::LOG_BUFFER, true);
    std::string logged;
    const auto collect = [](const osg::Char8 *data, osg::Int32 size, void *text) {
        static_cast<std::string *>(text)->append(data, size_t(size));
    };
    osg::osgLog().getLogBuf().setCallback(collect, &logged);
    osg::SFBitVector field(5);
    field.pushValueByStr("6");
    std::string text = "before";
    field.getValueByStr(text);
    osg::osgLog().getLogBuf().setCallback(nullptr);
    osg::osgLog().setLogType(osg::LOG_NONE, true);

    QCOMPARE(text, std::string("before"));
    QCOMPARE(field.getValue(), osg::BitVector(5));
    QCOMPARE(QString::fromStdString(logged),
        QString("LOG:  Error From String Conversion not available for \n"
                "LOG:  Error To String Conversion not available for \n"));
}

void tst_FieldText::aReadNumberWritesTheSameText_data()
{
    QTest::addColumn<QString>("type");
    for (const char *type : { "SFReal32", "SFReal64", "SFTime" }) {
        QTest::newRow(type) << type;
    }
}

// Against Qt's own conversion, which ignores the locale of the process.
void tst_FieldText::aReadNumberWritesTheSameText()
{
    QFETCH(QString, type);
    const auto field = fieldOf(qPrintable(type));
    for (int exponent = -30; exponent <= 30; ++exponent) {
        const QString text = QString::number(-1.234567 * std::pow(10, exponent), 'e', 6);
        field->pushValueByStr(qPrintable(text));
        QCOMPARE(textOf(*field), text);
    }
}

QTEST_GUILESS_MAIN(tst_FieldText)
#include "tst_fieldtext.moc"
