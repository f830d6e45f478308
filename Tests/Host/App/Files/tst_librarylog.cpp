#include "Files/kavoLibraryLog.h"
#include <kavoConsoleCapture.h>
#include <kavoTestHost.h>

#include <QTest>

class tst_LibraryLog : public QObject
{
    Q_OBJECT

private slots:
    void whatIsMoreThanInformationIsAComplaint_data();
    void whatIsMoreThanInformationIsAComplaint();
    void aLineWithoutAnEndIsLogged();
};

void tst_LibraryLog::whatIsMoreThanInformationIsAComplaint_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isComplaint");
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("information") << QByteArray("INFO:  done\n") << false;
    QTest::newRow("warning") << QByteArray("WARNING:  damaged\n") << true;
    QTest::newRow("a line without header") << QByteArray("damaged\n") << true;
    QTest::newRow("information without an end") << QByteArray("INFO:  done") << false;
    QTest::newRow("a warning without an end") << QByteArray("WARNING:  damaged") << true;
}

void tst_LibraryLog::whatIsMoreThanInformationIsAComplaint()
{
    QFETCH(QByteArray, text);
    const kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    const kavoLibraryLog log;
    osg::osgLog() << text.constData() << std::flush;
    QTEST(log.hasComplaints(), "isComplaint");
}

void tst_LibraryLog::aLineWithoutAnEndIsLogged()
{
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    {
        const kavoLibraryLog log;
        osg::osgLog() << "WARNING:  damaged" << std::flush;
    }
    QCOMPARE(errors.text(), QByteArray("warning: damaged\n"));
}

KAVO_TEST_MAIN(tst_LibraryLog)
#include "tst_librarylog.moc"
