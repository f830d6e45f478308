#include "kavoTreeRows.h"

#include <kavoCustomPropertyGLenum.h>
#include <kavoTestHost.h>

#include <QtTest>

using namespace kavoTreeRows;

class tst_PropertyRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theFieldTypeDecidesOnTheRow_data();
    void theFieldTypeDecidesOnTheRow();
    void everyRowBearsItsTypeAsTooltip_data();
    void everyRowBearsItsTypeAsTooltip();
    void falseInAnyLetterCaseIsUnchecked_data();
    void falseInAnyLetterCaseIsUnchecked();
    void aBoxIsAGroupOfSixNumbers_data();
    void aBoxIsAGroupOfSixNumbers();
    void aQuaternionIsAGroupOfFourNumbers();
    void numbersThatAreNotFiniteAreText_data();
    void numbersThatAreNotFiniteAreText();
    void aMinusBeforeNanLeavesTheOtherSubRows();
    void typeNamesAreCaseSensitive();
    void anEnumRowReadsOneNumber_data();
    void anEnumRowReadsOneNumber();
    void aColorOfThreeReadsThreeNumbers();
    void aColorOfFourReadsFourNumbers();
    void colorsTakeWhatTheTextHolds();
    void otherTypesShowTheirTextAsItIs();
    void floatsAreBeautified_data();
    void floatsAreBeautified();

private:
    QtVariantProperty *variant(const QString &typeName, const QString &text);
    colorVal color(const QString &typeName, const QString &text);

    kavoFCEditorWidget *m_editor = nullptr;
};

void tst_PropertyRows::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
}

void tst_PropertyRows::cleanup()
{
    delete m_editor;
}

QtVariantProperty *tst_PropertyRows::variant(const QString &typeName, const QString &text)
{
    return dynamic_cast<QtVariantProperty *>(m_editor->createPropertyItem("row", typeName, text));
}

colorVal tst_PropertyRows::color(const QString &typeName, const QString &text)
{
    const QtProperty *row = m_editor->createPropertyItem("row", typeName, text);
    return dynamic_cast<QtKavoColorPropertyManager &>(*row->propertyManager()).value(row);
}

void tst_PropertyRows::theFieldTypeDecidesOnTheRow_data()
{
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<int>("type");
    QTest::newRow("bool") << "SFBool" << int(QVariant::Bool);
    for (const char *name : { "SFInt8", "SFUInt8", "SFInt16", "SFUInt16", "SFInt32", "SFUInt32" })
        QTest::newRow(name) << name << int(QVariant::Int);
    for (const char *name : { "SFReal32", "SFReal64", "SFTime" })
        QTest::newRow(name) << name << int(QVariant::Double);
    for (const char *name : { "SFBoxVolume", "SFQuaternion" })
        QTest::newRow(name) << name << QtVariantPropertyManager::groupTypeId();
    for (const char *name : { "SFString", "SFVec3f", "SFMatrix", "SFInt64", "SFUInt64", "MFBool",
             "MFReal32", "MFGLenum", "MFColor3f", "SFNodePtr", "SFColor3ub", "" })
        QTest::newRow(name) << name << int(QVariant::String);
}

void tst_PropertyRows::theFieldTypeDecidesOnTheRow()
{
    QFETCH(QString, typeName);
    QtVariantProperty *row = variant(typeName, "1");
    QVERIFY(row);
    QTEST(row->propertyType(), "type");
    QVERIFY(row->isEnabled());
}

void tst_PropertyRows::everyRowBearsItsTypeAsTooltip_data()
{
    QTest::addColumn<QString>("typeName");
    for (const char *name : { "SFBool", "SFInt8", "SFTime", "SFBoxVolume", "SFQuaternion",
             "SFGLenum", "SFColor3f", "SFColor4f", "SFString", "MFVec3f" })
        QTest::newRow(name) << name;
}

void tst_PropertyRows::everyRowBearsItsTypeAsTooltip()
{
    QFETCH(QString, typeName);
    QCOMPARE(m_editor->createPropertyItem("row", typeName, "1")->toolTip(), typeName);
}

void tst_PropertyRows::falseInAnyLetterCaseIsUnchecked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("checked");
    for (const char *text : { "FALSE", "false", "False", "0", "" })
        QTest::newRow(text) << text << false;
    for (const char *text : { "TRUE", "true", "1", "no" })
        QTest::newRow(text) << text << true;
}

void tst_PropertyRows::falseInAnyLetterCaseIsUnchecked()
{
    QFETCH(QString, text);
    QTEST(variant("SFBool", text)->value().toBool(), "checked");
}

void tst_PropertyRows::aBoxIsAGroupOfSixNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<double>>("values");
    QTest::newRow("six") << "1.0e+00 -2.5 3 4 5 6e2" << QList<double> { 1, -2.5, 3, 4, 5, 600 };
    QTest::newRow("too few") << "1 2" << QList<double> { 1, 2, 0, 0, 0, 0 };
    QTest::newRow("too many") << "1 2 3 4 5 6 7" << QList<double> { 1, 2, 3, 4, 5, 6 };
    QTest::newRow("none") << "" << QList<double> { 0, 0, 0, 0, 0, 0 };
}

void tst_PropertyRows::aBoxIsAGroupOfSixNumbers()
{
    QFETCH(QString, text);
    const QtProperty *box = m_editor->createPropertyItem("bounds", "SFBoxVolume", text);
    QCOMPARE(box->propertyName(), QString("bounds (SFBoxVolume)"));
    QCOMPARE(titles(box), QString("min x,min y,min z,max x,max y,max z").split(','));
    QList<double> values;
    for (QtProperty *sub : box->subProperties())
        values.append(dynamic_cast<QtVariantProperty &>(*sub).value().toDouble());
    QTEST(values, "values");
}

void tst_PropertyRows::aQuaternionIsAGroupOfFourNumbers()
{
    const QtProperty *row
        = m_editor->createPropertyItem("rotation", "SFQuaternion", "0 9.999999e-01 0 1.570796e+00");
    QCOMPARE(row->propertyName(), QString("rotation (SFQuaternion)"));
    QCOMPARE(titles(row), QString("x,y,z,w").split(','));
    QCOMPARE(child(row, "y")->valueText(), QString("0.9999999"));
    QCOMPARE(child(row, "w")->valueText(), QString("1.570796"));
}

void tst_PropertyRows::numbersThatAreNotFiniteAreText_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : { "inf", "-inf", "nan", "-nan", "-NAN", " -nan" })
        QTest::newRow(text) << text;
}

void tst_PropertyRows::numbersThatAreNotFiniteAreText()
{
    QFETCH(QString, text);
    for (const char *typeName : { "SFReal32", "SFReal64", "SFTime" }) {
        const QtVariantProperty *row = variant(typeName, text);
        QCOMPARE(row->propertyType(), int(QVariant::String));
        QCOMPARE(row->valueText(), text);
        QCOMPARE(row->toolTip(), QString(typeName));
    }
}

void tst_PropertyRows::aMinusBeforeNanLeavesTheOtherSubRows()
{
    const QtProperty *row
        = m_editor->createPropertyItem("rotation", "SFQuaternion", "1 -nan -2.5 -NAN");
    QStringList texts;
    for (const QtProperty *sub : row->subProperties())
        texts.append(sub->valueText());
    QCOMPARE(texts, QStringList({ "1", "nan", "-2.5", "nan" }));
}

void tst_PropertyRows::typeNamesAreCaseSensitive()
{
    QCOMPARE(variant("sfBool", "TRUE")->propertyType(), int(QVariant::String));
    QCOMPARE(variant("SFcolor3f", "1 1 1")->propertyType(), int(QVariant::String));
}

void tst_PropertyRows::anEnumRowReadsOneNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned int>("value");
    QTest::newRow("plain") << "9729" << 9729u;
    QTest::newRow("leading blanks") << "  9728 rest" << 9728u;
    QTest::newRow("all bits") << "4294967295" << 0xFFFFFFFFu;
    QTest::newRow("nothing") << "" << 0u;
}

void tst_PropertyRows::anEnumRowReadsOneNumber()
{
    QFETCH(QString, text);
    const QtProperty *row = m_editor->createPropertyItem("minFilter", "SFGLenum", text);
    QCOMPARE(row->propertyName(), QString("minFilter"));
    QTEST(dynamic_cast<QtGLenumPropertyManager &>(*row->propertyManager()).value(row), "value");
}

void tst_PropertyRows::aColorOfThreeReadsThreeNumbers()
{
    const colorVal value = color("SFColor3f", "0.25 5.000000e-01 0.75 0.125");
    QCOMPARE(value.r, 0.25f);
    QCOMPARE(value.g, 0.5f);
    QCOMPARE(value.b, 0.75f);
    QCOMPARE(value.a, 1.f);
}

void tst_PropertyRows::aColorOfFourReadsFourNumbers()
{
    const colorVal value = color("SFColor4f", "0.25 0.5 0.75 0.125");
    QCOMPARE(value.r, 0.25f);
    QCOMPARE(value.b, 0.75f);
    QCOMPARE(value.a, 0.125f);
}

void tst_PropertyRows::colorsTakeWhatTheTextHolds()
{
    const colorVal value = color("SFColor3f", "0.25");
    QCOMPARE(value.r, 0.25f);
    QCOMPARE(value.g, 0.f);
    QCOMPARE(value.b, 0.f);
}

void tst_PropertyRows::otherTypesShowTheirTextAsItIs()
{
    for (const char *text : { "<unset>", "<size = 3>", "1.0 0 0 0 1.0", " ä, \"b\" ", "" })
        QCOMPARE(variant("SFMatrix", text)->valueText(), QString(text));
}

void tst_PropertyRows::floatsAreBeautified_data()
{
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("beautified");
    QTest::newRow("vector") << "SFVec3f"
                            << "1.00000 2.500000 0.333333333"
                            << "1, 2.5, 0.333333";
    QTest::newRow("exponent") << "SFVec3f"
                              << "1e-07 3"
                              << "1e-07, 3";
    QTest::newRow("exponent kept") << "SFVec3f"
                                   << "1.23456789e-07  0 0"
                                   << "1.23457e-07, 0, 0";
    QTest::newRow("empty parts") << "SFVec2f"
                                 << "1,,2"
                                 << "1, 2";
    QTest::newRow("no number") << "SFPnt2f"
                               << "a 1.50"
                               << "a, 1.5";
    QTest::newRow("only separators") << "SFPnt3f"
                                     << " , ,, "
                                     << "";
    QTest::newRow("nothing") << "SFVec4f"
                             << ""
                             << "";
    QTest::newRow("four") << "SFPnt4f"
                          << "1  2  3  4"
                          << "1, 2, 3, 4";
    QTest::newRow("real list") << "MFReal64"
                               << "1.0e+00, 2.0e+06"
                               << "1, 2e+06";
    QTest::newRow("int list") << "MFInt32"
                              << "1, 2,,3"
                              << "1, 2,,3";
    QTest::newRow("int") << "SFInt32"
                         << "1,,2"
                         << "1,,2";
    QTest::newRow("double vector") << "SFVec3d"
                                   << "1.0 2.0"
                                   << "1.0 2.0";
    QTest::newRow("vector list") << "MFVec3f"
                                 << "1.0 2.0"
                                 << "1.0 2.0";
}

void tst_PropertyRows::floatsAreBeautified()
{
    QFETCH(QString, typeName);
    QFETCH(QString, text);
    QTEST(kavoFCEditorWidget::beautifyFloats(typeName, text), "beautified");
}

KAVO_TEST_MAIN(tst_PropertyRows)
#include "tst_propertyrows.moc"
