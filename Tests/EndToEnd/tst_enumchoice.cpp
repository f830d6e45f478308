#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// The shipped binaries from a user's side: kavo, its plug-in, a model, and the mouse.
class tst_enumchoice : public QObject
{
    Q_OBJECT

private slots:
    void theEntryChosenWithTheMouseReachesTheField();

private:
    QByteArray run(const QStringList &arguments);

    QTemporaryDir m_settings;
};

// Runs kavo on the truck with its textured geometry selected. Returns what it prints, nothing if
// it fails.
QByteArray tst_enumchoice::run(const QStringList &arguments)
{
    QProcess kavo;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_settings.path());
    kavo.setProcessEnvironment(environment);
    kavo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    kavo.start(KAVO_EXECUTABLE,
        QStringList { KAVO_TRUCK, "--select", "Geometry-mesh002Node" } + arguments);
    const bool ended = kavo.waitForFinished(60000);
    return ended && kavo.exitCode() == 0 ? kavo.readAllStandardOutput() : QByteArray();
}

void tst_enumchoice::theEntryChosenWithTheMouseReachesTheField()
{
    const QString rows = run({ "--print-window", "Node Editor" });
    const auto chunk = QRegularExpression("TextureChunk \\((\\d+)\\)").match(rows);
    QVERIFY2(chunk.hasMatch(), qPrintable(rows));

    const QByteArray output
        = run({ "--plugins", KAVO_DRIVER_DIR, "--print-field", chunk.captured(1) + ".minFilter" });
    QVERIFY2(output.contains("property 'minFilter' changed to '9729'\n"), output);
    QVERIFY2(output.contains("\n9729\n"), output);
}

QTEST_GUILESS_MAIN(tst_enumchoice)
#include "tst_enumchoice.moc"
