#include <kavoConsoleCapture.h>
#include <kavoLog.h>

#include <QTest>

#include <atomic>
#include <thread>
#include <utility>

class tst_kavoLog : public QObject
{
    Q_OBJECT

private slots:
    void linesAreFormattedAsByPrintf();
    void aNewlineAtTheEndIsDropped();
    void levelsAreKept();
    void linesGoToStandardErrorWithTheirLevel();
    void observersSeeLinesUntilRemoved();
    void anObserverMayLog();
    void historyKeepsTheNewestLines();
    void threadsMayLogAtTheSameTime();
};

static kavoLog::Entry last()
{
    return kavoLog::history().back();
}

void tst_kavoLog::linesAreFormattedAsByPrintf()
{
    kavoLog::error("%s has %d chunks, %%", "Paint", 3);
    QCOMPARE(last().text, std::string("Paint has 3 chunks, %"));
}

void tst_kavoLog::aNewlineAtTheEndIsDropped()
{
    kavoLog::info("one\ntwo\n\n");
    QCOMPARE(last().text, std::string("one\ntwo"));
    kavoLog::info("\n");
    QCOMPARE(last().text, std::string());
}

void tst_kavoLog::levelsAreKept()
{
    kavoLog::warning("w");
    QVERIFY(last().level == kavoLog::Level::Warning);
    kavoLog::error("e");
    QVERIFY(last().level == kavoLog::Level::Error);
}

void tst_kavoLog::linesGoToStandardErrorWithTheirLevel()
{
    kavoConsoleCapture capture(kavoConsoleCapture::StandardError);
    kavoLog::error("broken");
    QCOMPARE(capture.text(), QByteArray("error: broken\n"));
}

void tst_kavoLog::observersSeeLinesUntilRemoved()
{
    std::vector<std::string> seen;
    const int observer
        = kavoLog::addObserver([&](const kavoLog::Entry &entry) { seen.push_back(entry.text); });
    kavoLog::info("a");
    kavoLog::removeObserver(observer);
    kavoLog::info("b");
    QCOMPARE(seen, std::vector<std::string> { "a" });
}

void tst_kavoLog::anObserverMayLog()
{
    bool nested = false;
    const int observer = kavoLog::addObserver([&](const kavoLog::Entry &) {
        if (!std::exchange(nested, true))
            kavoLog::info("echo");
    });
    kavoLog::info("call");
    kavoLog::removeObserver(observer);
    QCOMPARE(last().text, std::string("echo"));
}

void tst_kavoLog::historyKeepsTheNewestLines()
{
    const kavoConsoleCapture quiet(kavoConsoleCapture::StandardError);
    for (std::size_t i = 0; i <= kavoLog::historyLimit; ++i)
        kavoLog::info("line %zu", i);
    QCOMPARE(kavoLog::history().size(), kavoLog::historyLimit);
    QCOMPARE(kavoLog::history().front().text, std::string("line 1"));
}

void tst_kavoLog::threadsMayLogAtTheSameTime()
{
    const kavoConsoleCapture quiet(kavoConsoleCapture::StandardError);
    std::atomic<int> seen { 0 };
    const int observer = kavoLog::addObserver([&](const kavoLog::Entry &) { ++seen; });
    const auto work = [] {
        for (int i = 0; i < 500; ++i)
            kavoLog::info("line %d", i);
    };
    std::thread a(work), b(work);
    a.join();
    b.join();
    kavoLog::removeObserver(observer);
    QCOMPARE(seen.load(), 1000);
}

QTEST_GUILESS_MAIN(tst_kavoLog)
#include "tst_kavolog.moc"
