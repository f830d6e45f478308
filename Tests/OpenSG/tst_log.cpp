#include <OpenSG/OSGLog.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace osg;

Q_DECLARE_METATYPE(osg::LogLevel)

/// The log writes into a string for every slot.
class tst_Log : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aLineStartsWithItsLevelAndTwoBlanks_data();
    void aLineStartsWithItsLevelAndTwoBlanks();
    void linesAboveTheLevelAreNotPrinted();
    void logLinesAreAlwaysPrinted();
    void withoutHeaderOnlyTheTextIsPrinted();
    void theStreamItselfIgnoresTheLevel();
    void printfLinesOfAnyLength();
    void plainPrintfIgnoresLevelAndHeader();
    void aHeaderCanBeSwitchedOff();
    void theEnvironmentWinsUnlessForced();
    void aFileIsWritten();
    void textKeptWithoutCallbackIsHandedOver();

private:
    std::string m_logged;
};

namespace {

void collect(const Char8 *data, Int32 size, void *text)
{
    static_cast<std::string *>(text)->append(data, size_t(size));
}

} // namespace

void tst_Log::init()
{
    m_logged.clear();
    osgLog().setLogType(LOG_BUFFER, true);
    osgLog().getLogBuf().setCallback(collect, &m_logged);
    osgLog().setLogLevel(LOG_INFO, true);
    osgLog().setHeaderElem(LOG_TYPE_HEADER, true);
}

void tst_Log::cleanup()
{
    osgLog().getLogBuf().setCallback(nullptr);
}

void tst_Log::aLineStartsWithItsLevelAndTwoBlanks_data()
{
    QTest::addColumn<LogLevel>("level");
    QTest::addColumn<QString>("line");
    QTest::newRow("log") << LOG_LOG << "LOG:  text\n";
    QTest::newRow("fatal") << LOG_FATAL << "FATAL:  text\n";
    QTest::newRow("warning") << LOG_WARNING << "WARNING:  text\n";
    QTest::newRow("notice") << LOG_NOTICE << "NOTICE:  text\n";
    QTest::newRow("info") << LOG_INFO << "INFO:  text\n";
}

void tst_Log::aLineStartsWithItsLevelAndTwoBlanks()
{
    QFETCH(LogLevel, level);
    OSG_LOG_LINE(level) << "text" << endLog;
    QTEST(QString::fromStdString(m_logged), "line");
}

void tst_Log::linesAboveTheLevelAreNotPrinted()
{
    osgLog().setLogLevel(LOG_WARNING, true);
    SNOTICE << "a" << endLog;
    PNOTICE << "b" << endLog;
    FNOTICE(("c\n"));
    FPNOTICE(("d\n"));
    QCOMPARE(m_logged, std::string());
    QVERIFY(!osgLog().checkLevel(LOG_NOTICE));
}

void tst_Log::logLinesAreAlwaysPrinted()
{
    osgLog().setLogLevel(LOG_LOG, true);
    SLOG << "a" << endLog;
    QCOMPARE(m_logged, std::string("LOG:  a\n"));
}

void tst_Log::withoutHeaderOnlyTheTextIsPrinted()
{
    PWARNING << "a" << 1 << endLog;
    FPWARNING(("b%d\n", 2));
    FPLOG(("c%d\n", 3));
    QCOMPARE(m_logged, std::string("a1\nb2\nc3\n"));
}

void tst_Log::theStreamItselfIgnoresTheLevel()
{
    osgLog().setLogLevel(LOG_LOG, true);
    osgLog() << "text" << std::endl;
    QCOMPARE(m_logged, std::string("text\n"));
}

void tst_Log::printfLinesOfAnyLength()
{
    const std::string longText(5000, 'x');
    FWARNING(("%s %d\n", longText.c_str(), 7));
    QCOMPARE(m_logged, "WARNING:  " + longText + " 7\n");
}

void tst_Log::plainPrintfIgnoresLevelAndHeader()
{
    osgLog().setLogLevel(LOG_FATAL, true);
    osgLog().doLog("%s %d\n", "text", 7);
    QCOMPARE(m_logged, std::string("text 7\n"));
}

void tst_Log::aHeaderCanBeSwitchedOff()
{
    osgLog().setHeaderElem(0, true);
    SWARNING << "text" << endLog;
    QCOMPARE(m_logged, std::string("text\n"));
}

void tst_Log::theEnvironmentWinsUnlessForced()
{
    qputenv("OSG_LOG_LEVEL", "4");
    osgLog().setLogLevel(LOG_FATAL);
    QCOMPARE(osgLog().getLogLevel(), LOG_INFO);
    osgLog().setLogLevel(LOG_FATAL, true);
    QCOMPARE(osgLog().getLogLevel(), LOG_FATAL);
    qunsetenv("OSG_LOG_LEVEL");
}

void tst_Log::aFileIsWritten()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("log");
    osgLog().setLogFile(path.toLocal8Bit().constData(), true);
    SWARNING << "text" << endLog;
    osgLog().getLogBuf().setFile(nullptr);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("WARNING:  text\n"));
}

void tst_Log::textKeptWithoutCallbackIsHandedOver()
{
    osgLog().getLogBuf().setCallback(nullptr);
    osgLog() << "kept";
    osgLog().getLogBuf().setCallback(collect, &m_logged, true);
    QCOMPARE(m_logged, std::string("kept"));
}

QTEST_APPLESS_MAIN(tst_Log)
#include "tst_log.moc"
