#include "Window/kavoPluginLoader.h"
#include <kavoLog.h>
#include <kavoModuleBase.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerType.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class tst_PluginLoader : public QObject
{
    Q_OBJECT

private slots:
    void everyLibraryOfAFolderIsTriedAndTheGoodOnesStart();
    void whatGoesWrongIsLogged_data();
    void whatGoesWrongIsLogged();
    void containerTypesOfAPluginCanBeMade();
    void theSameFolderAgainStartsNothingTwice();
    void aFileThatIsNoLibraryIsLoggedAndSkipped();
    void otherFilesAreLeftAlone();
    void aMissingFolderIsLogged();
    void theDefaultFolderIsBesideTheExecutablesFolder();

private:
    kavoPluginLoader m_loader;
};

static bool isLogged(const QString &text)
{
    for (const kavoLog::Entry &entry : kavoLog::history()) {
        if (QString::fromStdString(entry.text).contains(text))
            return true;
    }
    return false;
}

void tst_PluginLoader::everyLibraryOfAFolderIsTriedAndTheGoodOnesStart()
{
    QCOMPARE(m_loader.load(KAVO_TEST_PLUGIN_DIR), 1);
    QCOMPARE(kavoModuleBase::modules().size(), std::size_t(1));
    QCOMPARE(kavoModuleBase::modules().front()->name(), std::string("Good Module"));
}

void tst_PluginLoader::whatGoesWrongIsLogged_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("success") << "libGoodPlugin.so' loaded";
    QTest::newRow("no entry") << "libWithoutEntryPlugin.so' skipped: it has no entry initPlugin";
    QTest::newRow("unresolved symbol") << "libUnresolvedPlugin.so' skipped: ";
    QTest::newRow("exception")
        << "libThrowingPlugin.so' skipped: initPlugin failed: no licence today";
    QTest::newRow("unknown exception")
        << "libUnknownThrowingPlugin.so' skipped: initPlugin failed: unknown exception";
}

void tst_PluginLoader::whatGoesWrongIsLogged()
{
    QFETCH(QString, line);
    QVERIFY(isLogged(line));
}

void tst_PluginLoader::containerTypesOfAPluginCanBeMade()
{
    osg::FieldContainerPtr made
        = osg::FieldContainerFactory::the()->createFieldContainer("GoodMark");
    QVERIFY(made != osg::NullFC);
    osg::subRefCP(made);
}

void tst_PluginLoader::theSameFolderAgainStartsNothingTwice()
{
    QCOMPARE(m_loader.load(KAVO_TEST_PLUGIN_DIR), 0);
    QCOMPARE(kavoModuleBase::modules().size(), std::size_t(1));
}

void tst_PluginLoader::aFileThatIsNoLibraryIsLoggedAndSkipped()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("libBroken.so"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("this is no library");
    file.close();
    QCOMPARE(m_loader.load(folder.path()), 0);
    QVERIFY(isLogged("libBroken.so' skipped: "));
}

void tst_PluginLoader::otherFilesAreLeftAlone()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("README.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(m_loader.load(folder.path()), 0);
    QVERIFY(!isLogged("README.txt"));
}

void tst_PluginLoader::aMissingFolderIsLogged()
{
    QCOMPARE(m_loader.load("/no/such/folder"), 0);
    QVERIFY(isLogged("There is no plug-in folder '/no/such/folder'"));
}

void tst_PluginLoader::theDefaultFolderIsBesideTheExecutablesFolder()
{
    QCOMPARE(kavoPluginLoader::defaultFolder(),
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../plugins"));
}

KAVO_TEST_MAIN(tst_PluginLoader)
#include "tst_kavopluginloader.moc"
