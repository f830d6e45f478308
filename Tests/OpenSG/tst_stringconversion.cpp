#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGStandardStringConversionState.h>

#include <QtTest>

using namespace osg;

class tst_StringConversion : public QObject
{
    Q_OBJECT

private slots:
    void wordsAreJoinedBySingleBlanks();
    void aStateAlwaysAppends();
    void valuesOfAListAreSeparatedByCommas();
    void aWordBeyondTheWidthStartsALine();
    void theIndentIsNotCounted();
    void anEmptyListTakesTwoCharactersFromTheStart();
    void whiteSpaceInStringsCollapses();
    void everyFieldStartsALineOfItsOwnLength();
};

namespace {

QString textOf(const Field &field, StandardStringConversionState state, std::string text = {})
{
    return QString::fromStdString(field.getValueByStr(text, state));
}

MFInt32 numbers(Int32 first, Int32 last)
{
    MFInt32 field;
    for (Int32 number = first; number <= last; ++number) {
        field.push_back(number);
    }
    return field;
}

} // namespace

void tst_StringConversion::wordsAreJoinedBySingleBlanks()
{
    const SFVec2ub field(Vec2ub(1, 2));
    QCOMPARE(textOf(field, StandardStringConversionState()), QString("1 2"));
}

void tst_StringConversion::aStateAlwaysAppends()
{
    QCOMPARE(textOf(SFInt32(7), StandardStringConversionState(3), "x"), QString("x   7"));
}

void tst_StringConversion::valuesOfAListAreSeparatedByCommas()
{
    QCOMPARE(textOf(numbers(1, 3), StandardStringConversionState(2)), QString("  1, 2, 3"));
}

// "10" counts 3 and its separator 2: with the third value the line would have 13.
void tst_StringConversion::aWordBeyondTheWidthStartsALine()
{
    QCOMPARE(textOf(numbers(10, 14), StandardStringConversionState(0, 12)),
        QString("10, 11, \n12, 13, \n14"));
}

void tst_StringConversion::theIndentIsNotCounted()
{
    QCOMPARE(
        textOf(numbers(10, 12), StandardStringConversionState(4, 13)), QString("    10, 11, 12"));
    QCOMPARE(textOf(numbers(10, 12), StandardStringConversionState(4, 12)),
        QString("    10, 11, \n    12"));
}

void tst_StringConversion::anEmptyListTakesTwoCharactersFromTheStart()
{
    QCOMPARE(textOf(MFInt32(), StandardStringConversionState(4)), QString("  "));
    QCOMPARE(textOf(MFInt32(), StandardStringConversionState(0), "text"), QString("xt"));
    QCOMPARE(textOf(MFInt32(), StandardStringConversionState(0)), QString());
}

void tst_StringConversion::whiteSpaceInStringsCollapses()
{
    MFString field;
    field.push_back("a  b\n\tc");
    QCOMPARE(textOf(field, StandardStringConversionState()), QString("\"a b c\""));
}

void tst_StringConversion::everyFieldStartsALineOfItsOwnLength()
{
    StandardStringConversionState state(0, 12);
    std::string text;
    numbers(10, 11).getValueByStr(text, state);
    text += '|';
    numbers(10, 11).getValueByStr(text, state);
    QCOMPARE(QString::fromStdString(text), QString("10, 11|10, 11"));
}

QTEST_APPLESS_MAIN(tst_StringConversion)
#include "tst_stringconversion.moc"
