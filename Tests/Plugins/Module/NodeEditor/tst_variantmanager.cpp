#include <kavoVariantPropertyManager.h>

#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QtTest>

class tst_VariantManager : public QObject
{
    Q_OBJECT

private slots:
    void textsReadAsALineEditShowsThem_data();
    void textsReadAsALineEditShowsThem();
    void textsHoldWhatTheyAreGiven();
    void textsAcceptLineBreaks();
};

void tst_VariantManager::textsReadAsALineEditShowsThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("plain text");
    QTest::newRow("beyond Latin") << QStringLiteral("\u00e4\u4e2d\U0001f600");
    QTest::newRow("control characters") << QStringLiteral("a\nb\tc\rd\u001fe\u007ff");
    QTest::newRow("separators") << QStringLiteral("a\u2028b\u2029c\ufffcd\u00a0e");
    QTest::newRow("longer than a line edit takes") << QString(40000, 'x');
}

void tst_VariantManager::textsReadAsALineEditShowsThem()
{
    QFETCH(QString, text);
    kavoVariantPropertyManager manager;
    QtVariantProperty *row = manager.addProperty(QVariant::String, "text");
    row->setValue(text);
    QLineEdit edit;
    edit.setText(text);
    QCOMPARE(row->valueText(), edit.displayText());
}

void tst_VariantManager::textsHoldWhatTheyAreGiven()
{
    kavoVariantPropertyManager manager;
    QtVariantProperty *row = manager.addProperty(QVariant::String, "text");
    row->setValue("a\nb");
    QCOMPARE(row->value().toString(), QString("a\nb"));
}

// A line edit rejects every key if its text does not match the row's expression.
void tst_VariantManager::textsAcceptLineBreaks()
{
    kavoVariantPropertyManager manager;
    QtVariantProperty *row = manager.addProperty(QVariant::String, "text");
    const QRegularExpression expression = row->attributeValue("regExp").toRegularExpression();
    QVERIFY(expression.isValid());
    QRegularExpressionValidator validator(expression);
    QString text = "a\nb";
    int position = 0;
    QCOMPARE(validator.validate(text, position), QValidator::Acceptable);
}

QTEST_MAIN(tst_VariantManager)

#include "tst_variantmanager.moc"
