#include "kavoPickerFixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

namespace {

void setRecentColors(const QVector<QColor> &colors)
{
    QVariantList list;
    for (const QColor &color : colors)
        list << color;
    QSettings().setValue("ColorPicker/recent", list);
}

QVector<QColor> recentColors()
{
    QVector<QColor> colors;
    for (const QVariant &color : QSettings().value("ColorPicker/recent").toList())
        colors << color.value<QColor>();
    return colors;
}

} // namespace

class tst_RecentColors : public QObject, private kavoPickerFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theChosenColorBecomesRecent();
    void aColorTakenBackDoesNotBecomeRecent();
    void recentColorsAreDistinctAndLimited();
    void aRecentColorIsChosenWithTheKeyboard();
    void damagedSettingsGiveNoRecentColors();
};

void tst_RecentColors::init()
{
    setUp();
}

void tst_RecentColors::cleanup()
{
    tearDown();
}

void tst_RecentColors::theChosenColorBecomesRecent()
{
    open();
    QVERIFY(!child<QWidget>("recentColors")->isVisible());
    QTest::keyClicks(child<QLineEdit>("hex"), "#ff8000");
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Return);
    QCOMPARE(recentColors(), QVector<QColor>({ QColor("#ff8000") }));
    open();
    QVERIFY(child<QWidget>("recentColors")->isVisible());
}

void tst_RecentColors::aColorTakenBackDoesNotBecomeRecent()
{
    open();
    QTest::keyClicks(child<QLineEdit>("hex"), "#ff8000");
    QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Escape);
    QCOMPARE(recentColors(), QVector<QColor>());
}

void tst_RecentColors::recentColorsAreDistinctAndLimited()
{
    for (int i : { 10, 20, 30, 40, 50, 60, 70, 80, 90, 11, 21, 31, 41, 51, 61, 60 }) {
        open();
        QTest::keyClicks(child<QLineEdit>("hex"), QStringLiteral("#0000%1").arg(i));
        QTest::keyClick(child<QLineEdit>("hex"), Qt::Key_Return);
    }
    const QVector<QColor> recent = recentColors();
    QCOMPARE(recent.size(), 14);
    QCOMPARE(recent.first(), QColor("#000060"));
    QCOMPARE(recent.count(recent.first()), 1);
    QCOMPARE(recent.last(), QColor("#000020"));
}

void tst_RecentColors::aRecentColorIsChosenWithTheKeyboard()
{
    setRecentColors({ Qt::red, Qt::green });
    open();
    QSignalSpy changed(m_picker, &QKAVOColorManipulator::colorChanged);
    QTest::keyClick(child<QWidget>("recentColors"), Qt::Key_Right);
    QTest::keyClick(child<QWidget>("recentColors"), Qt::Key_Right);
    QCOMPARE(hsv(*m_picker), Components({ 120, 1, 1 }));
    QCOMPARE(changed.count(), 2);
    QTest::keyClick(child<QWidget>("recentColors"), Qt::Key_Return);
    QVERIFY(!popup()->isVisible());
}

void tst_RecentColors::damagedSettingsGiveNoRecentColors()
{
    QSettings().setValue("ColorPicker/recent", QVariantList { "nonsense", 7 });
    open();
    QVERIFY(!child<QWidget>("recentColors")->isVisible());
}

QTEST_MAIN(tst_RecentColors)
#include "tst_recentcolors.moc"
