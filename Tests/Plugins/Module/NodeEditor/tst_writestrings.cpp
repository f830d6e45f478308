#include "kavoSampledEditor.h"
#include "kavoTreeRows.h"

#include <kavoTestHost.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <QtTest>

using namespace kavoTreeRows;

// Edits of string rows. The library writes strings with quotes but reads them without.
class tst_WriteStrings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aStringGainsNoQuotes();
    void aStringThatContainsQuotesSurvives_data();
    void aStringThatContainsQuotesSurvives();
    void aNameEditedTenTimesHasNoQuotes();
    void stringsAreShownAndWrittenInUtf8();
    void aLongStringIsEditedWhole();

private:
    std::unique_ptr<kavoSampledEditor> m_rows;
};

void tst_WriteStrings::init()
{
    m_rows = std::make_unique<kavoSampledEditor>();
}

void tst_WriteStrings::cleanup()
{
    m_rows.reset();
}

void tst_WriteStrings::aStringGainsNoQuotes()
{
    setValue(m_rows->editor(), "text", "\"a b\"");
    QCOMPARE(m_rows->sampler()->text.getValue(), std::string("a b"));
    setValue(m_rows->editor(), "text", "plain ä");
    QCOMPARE(m_rows->sampler()->text.getValue(), std::string("plain ä"));
}

void tst_WriteStrings::aStringThatContainsQuotesSurvives_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value : { "a\"b", "\"", "\"\"", "\"whole\"", "a\"", "" })
        QTest::newRow(value) << value;
}

void tst_WriteStrings::aStringThatContainsQuotesSurvives()
{
    QFETCH(QString, value);
    m_rows->sampler()->text.setValue(value.toStdString());
    m_rows->refresh();
    const QString shown = text(m_rows->editor(), "text");
    setValue(m_rows->editor(), "text", "other");
    setValue(m_rows->editor(), "text", shown);
    QCOMPARE(QString::fromStdString(m_rows->sampler()->text.getValue()), value);
}

void tst_WriteStrings::aNameEditedTenTimesHasNoQuotes()
{
    const osg::NamePtr name = osg::Name::create();
    osg::addRefCP(name);
    name->getFieldPtr()->setValue("Wheel");
    for (int i = 0; i < 10; ++i) {
        m_rows->editor().setFC("name", name);
        QString shown = text(m_rows->editor(), "name");
        setValue(m_rows->editor(), "name", shown.insert(shown.size() - 1, 'x'));
    }
    QCOMPARE(name->getFieldPtr()->getValue(), std::string("Wheelxxxxxxxxxx"));
    osg::subRefCP(name);
}

void tst_WriteStrings::stringsAreShownAndWrittenInUtf8()
{
    m_rows->sampler()->text.setValue("Räder \xe4\xb8\xad");
    m_rows->refresh();
    QCOMPARE(text(m_rows->editor(), "text"), QString::fromUtf8("\"Räder \xe4\xb8\xad\""));
    setValue(m_rows->editor(), "text", QString::fromUtf8("Türen \xe4\xb8\xad"));
    QCOMPARE(m_rows->sampler()->text.getValue(), std::string("Türen \xe4\xb8\xad"));
}

void tst_WriteStrings::aLongStringIsEditedWhole()
{
    m_rows->sampler()->text.setValue(std::string(40000, 'x'));
    m_rows->show();
    QWidget *line = m_rows->open("text");
    QTest::keyClick(line, Qt::Key_End);
    QTest::keyClick(line, Qt::Key_Left);
    QTest::keyClick(line, Qt::Key_Y);
    QVERIFY(m_rows->sampler()->text.getValue() == std::string(40000, 'x') + 'y');
}

KAVO_TEST_MAIN(tst_WriteStrings)
#include "tst_writestrings.moc"
