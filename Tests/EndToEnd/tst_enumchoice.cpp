#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// Edits a field with the mouse in the shipped binaries.
class tst_EnumChoice : public QObject
{
    Q_OBJECT

private slots:
    void theEntryChosenWithTheMouseReachesTheField();
    void theEntryChosenWithTheMouseIsInTheSavedFile();

private:
    QByteArray run(const QString &scene, const QStringList &arguments);

    QTemporaryDir m_settings;
};

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// Runs kavo with the textured geometry of a scene selected. Returns its output, empty if it fails.
QByteArray tst_EnumChoice::run(const QString &scene, const QStringList &arguments)
{
    QProcess kavo;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_settings.path());
    kavo.setProcessEnvironment(environment);
    kavo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    kavo.start(
        KAVO_EXECUTABLE, QStringList { scene, "--select", "Geometry-mesh002Node" } + arguments);
    const bool ended = kavo.waitForFinished(60000);
    return ended && kavo.exitCode() == 0 ? kavo.readAllStandardOutput() : QByteArray();
}

void tst_EnumChoice::theEntryChosenWithTheMouseReachesTheField()
{
    const QString rows = run(KAVO_TRUCK, { "--print-window", "Node Editor" });
    const auto chunk = QRegularExpression("TextureChunk \\((\\d+)\\)").match(rows);
    QVERIFY2(chunk.hasMatch(), qPrintable(rows));

    const QByteArray output = run(KAVO_TRUCK,
        { "--plugins", KAVO_DRIVER_DIR, "--print-field", chunk.captured(1) + ".minFilter" });
    QVERIFY2(output.contains("property 'minFilter' changed to '9729'\n"), output);
    QVERIFY2(output.contains("\n9729\n"), output);
}

void tst_EnumChoice::theEntryChosenWithTheMouseIsInTheSavedFile()
{
    const QString scene = m_settings.filePath("box.osg");
    QVERIFY(!run(KAVO_BOX, { "--save", scene }).isEmpty());
    QVERIFY(contents(scene).contains("minFilter 9987\n"));
    QVERIFY(!run(scene, { "--plugins", KAVO_DRIVER_DIR }).isEmpty());
    QVERIFY(contents(scene).contains("minFilter 9729\n"));
    QVERIFY(!contents(scene).contains("minFilter 9987\n"));
}

QTEST_GUILESS_MAIN(tst_EnumChoice)
#include "tst_enumchoice.moc"
