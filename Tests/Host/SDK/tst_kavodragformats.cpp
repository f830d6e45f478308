#include <kavoDragFormats.h>

#include <QDataStream>
#include <QTest>

class tst_kavoDragFormats : public QObject
{
    Q_OBJECT

private slots:
    void idsAreBigEndian32BitNumbers();
    void noIdsGiveAnEmptyPayload();
    void aStreamReadsTheIdsBack();
};

void tst_kavoDragFormats::idsAreBigEndian32BitNumbers()
{
    QCOMPARE(kavoDragFormats::payload({ 1, 0x01020304 }).toHex(), QByteArray("0000000101020304"));
}

void tst_kavoDragFormats::noIdsGiveAnEmptyPayload()
{
    QVERIFY(kavoDragFormats::payload({}).isEmpty());
}

void tst_kavoDragFormats::aStreamReadsTheIdsBack()
{
    QDataStream stream(kavoDragFormats::payload({ 173, -1 }));
    int first = 0, second = 0;
    stream >> first >> second;
    QCOMPARE(first, 173);
    QCOMPARE(second, -1);
    QVERIFY(stream.atEnd());
}

QTEST_GUILESS_MAIN(tst_kavoDragFormats)
#include "tst_kavodragformats.moc"
