#include <kavoConsoleCapture.h>
#include <kavoMessage.h>

#include <QTest>

class tst_kavoMessage : public QObject
{
    Q_OBJECT

private slots:
    void aDefaultMessageHasIdentifierZero();
    void anAttributeKeepsTypeAndValue();
    void aMissingAttributeIsEmpty();
    void settingAnAttributeAgainReplacesIt();
    void aCopyHasItsOwnAttributes();
    void printBTWritesTheCallStackToStandardError();
};

void tst_kavoMessage::aDefaultMessageHasIdentifierZero()
{
    QCOMPARE(kavoMessage().id(), 0);
    QCOMPARE(kavoMessage(0x100).id(), 0x100);
}

void tst_kavoMessage::anAttributeKeepsTypeAndValue()
{
    kavoMessage message;
    message.set("size", 3.5f);
    QVERIFY(message.get("size").type() == typeid(float));
    QCOMPARE(boost::any_cast<float>(message.get("size")), 3.5f);
}

void tst_kavoMessage::aMissingAttributeIsEmpty()
{
    QVERIFY(kavoMessage().get("node").empty());
}

void tst_kavoMessage::settingAnAttributeAgainReplacesIt()
{
    kavoMessage message;
    message.set("a", 1);
    message.set("a", std::string("text"));
    QCOMPARE(boost::any_cast<std::string>(message.get("a")), std::string("text"));
}

void tst_kavoMessage::aCopyHasItsOwnAttributes()
{
    kavoMessage message(5);
    message.set("a", 1);
    kavoMessage copy = message;
    copy.set("a", 2);
    QCOMPARE(boost::any_cast<int>(message.get("a")), 1);
    QCOMPARE(copy.id(), 5);
}

void tst_kavoMessage::printBTWritesTheCallStackToStandardError()
{
    QByteArray printed;
    {
        kavoConsoleCapture capture(kavoConsoleCapture::StandardError);
        kavoMessage::printBT();
        printed = capture.text();
    }
    QVERIFY2(printed.startsWith(" 0# "), printed.constData());
    QVERIFY(printed.count('\n') > 2);
}

QTEST_GUILESS_MAIN(tst_kavoMessage)
#include "tst_kavomessage.moc"
