#include "Window/kavoLogView.h"
#include <kavoTestHost.h>

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include <thread>

class tst_LogView : public QObject
{
    Q_OBJECT

private slots:
    void linesWrittenBeforeItExistedShow();
    void newLinesShow();
    void linesOfOtherThreadsShow();
    void theLevelFilterHidesAndShowsAgain();
    void clearEmptiesItForGood();
};

static QStringList lines(const QWidget &view)
{
    return view.findChild<QPlainTextEdit *>()->toPlainText().split('\n', Qt::SkipEmptyParts);
}

void tst_LogView::linesWrittenBeforeItExistedShow()
{
    kavoLog::warning("early");
    const kavoLogView view;
    QCOMPARE(lines(view).last(), QStringLiteral("warning: early"));
}

void tst_LogView::newLinesShow()
{
    const kavoLogView view;
    kavoLog::info("new");
    QTRY_COMPARE(lines(view).last(), QStringLiteral("info: new"));
}

void tst_LogView::linesOfOtherThreadsShow()
{
    const kavoLogView view;
    std::thread([] { kavoLog::info("from afar"); }).join();
    QTRY_COMPARE(lines(view).last(), QStringLiteral("info: from afar"));
}

void tst_LogView::theLevelFilterHidesAndShowsAgain()
{
    const kavoLogView view;
    kavoLog::error("bad");
    kavoLog::info("harmless");
    QTRY_COMPARE(lines(view).last(), QStringLiteral("info: harmless"));
    auto *level = view.findChild<QComboBox *>();
    level->setCurrentIndex(2);
    QCOMPARE(lines(view).last(), QStringLiteral("error: bad"));
    level->setCurrentIndex(0);
    QCOMPARE(lines(view).last(), QStringLiteral("info: harmless"));
}

void tst_LogView::clearEmptiesItForGood()
{
    kavoLog::info("old");
    const kavoLogView view;
    QTest::mouseClick(view.findChild<QToolButton *>(), Qt::LeftButton);
    QCOMPARE(lines(view), QStringList());
    view.findChild<QComboBox *>()->setCurrentIndex(1);
    view.findChild<QComboBox *>()->setCurrentIndex(0);
    QCOMPARE(lines(view), QStringList());
}

KAVO_TEST_MAIN(tst_LogView)
#include "tst_kavologview.moc"
