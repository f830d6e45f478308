#include <QKAVODockWindowManager.h>
#include <kavoController.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoModuleBase.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <dlfcn.h>

class tst_Plugin : public QObject
{
    Q_OBJECT

private slots:
    void initPluginIsTheOnlyFunctionExported();
    void noTemplateOfTheComponentIsDefinedAgain();
    void loadingAloneMakesNoModule();
    void loadingBringsTheValuePairOperationAlong();
    void anExceptionLeavesInitPluginAndTheNextCallTriesAgain();
    void initPluginMakesTheModule();
    void initPluginTwiceMakesOneModuleAndOneWindow();
    void theTypeOfTheStoredModuleIsTheEditor();
    void aNodeIsShownInTheWindow();
    void theProcessEndsWellWithANodeShown();

private:
    using InitPlugin = void (*)();

    QLibrary m_library { QStringLiteral(KAVO_PLUGIN_FILE) };
};

namespace {

QStringList definedSymbols(const QString &file, const QString &option)
{
    QProcess nm;
    nm.start("nm", { option, "--defined-only", "--format=posix", file });
    nm.waitForFinished();
    return QString(nm.readAllStandardOutput()).split('\n');
}

// Returns the functions and data that a library exports. Skips weak symbols, which are inline code
// of other libraries, and the linker's own marks.
QStringList exportedSymbols(const QString &file)
{
    QStringList names;
    for (const QString &line : definedSymbols(file, "--dynamic")) {
        const QStringList parts = line.split(' ');
        const bool isWeak = QString("VWu").contains(parts.value(1, "W"));
        if (!isWeak && !QStringList { "__bss_start", "_edata", "_end" }.contains(parts.first()))
            names.append(parts.first());
    }
    return names;
}

} // namespace

void tst_Plugin::initPluginIsTheOnlyFunctionExported()
{
    QCOMPARE(exportedSymbols(m_library.fileName()), QStringList("initPlugin"));
}

// The linker would use one of the two definitions for both.
void tst_Plugin::noTemplateOfTheComponentIsDefinedAgain()
{
    const QStringList symbols = definedSymbols(m_library.fileName(), "--demangle");
    QVERIFY(!symbols.filter("kavoEditorFactoryPrivate<QComboBox>::").isEmpty());
    QCOMPARE(symbols.filter(QRegularExpression("\\bEditorFactoryPrivate<")), QStringList());
}

void tst_Plugin::loadingAloneMakesNoModule()
{
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    QVERIFY(kavoModuleBase::modules().empty());
}

void tst_Plugin::loadingBringsTheValuePairOperationAlong()
{
    void *operation = ::dlopen("libValuePairCSVCreator.so", RTLD_NOW | RTLD_NOLOAD);
    QVERIFY2(operation, "no such library is loaded");
    ::dlclose(operation);
}

// The host throws after the window is complete, so the window stays a child of the main window.
void tst_Plugin::anExceptionLeavesInitPluginAndTheNextCallTriesAgain()
{
    const auto initPlugin = reinterpret_cast<InitPlugin>(m_library.resolve("initPlugin"));
    const auto throwing = connect(
        &kavoTestHost::docks(), &QKAVODockWindowManager::windowsChanged, this, [] { throw 1; });
    for (int i = 0; i < 2; ++i) {
        QVERIFY_EXCEPTION_THROWN(initPlugin(), int);
        QVERIFY(kavoModuleBase::modules().empty());
        QWidget *window = kavoTestHost::docks().window("Node Editor");
        QVERIFY(kavoTestHost::mainWindow().isAncestorOf(window));
        const QSignalBlocker silent(kavoTestHost::docks());
        delete window;
    }
    disconnect(throwing);
}

void tst_Plugin::initPluginMakesTheModule()
{
    const auto initPlugin = reinterpret_cast<InitPlugin>(m_library.resolve("initPlugin"));
    QVERIFY(initPlugin);
    initPlugin();
    QCOMPARE(kavoModuleBase::modules().size(), std::size_t(1));
    QCOMPARE(kavoTestHost::docks().keys(), QStringList("Node Editor"));
}

void tst_Plugin::initPluginTwiceMakesOneModuleAndOneWindow()
{
    reinterpret_cast<InitPlugin>(m_library.resolve("initPlugin"))();
    QCOMPARE(kavoModuleBase::modules().size(), std::size_t(1));
    QCOMPARE(kavoTestHost::docks().keys(), QStringList("Node Editor"));
}

void tst_Plugin::theTypeOfTheStoredModuleIsTheEditor()
{
    const kavoModuleBase *module = kavoModuleBase::modules().front();
    QCOMPARE(module->metaObject()->className(), "kavoNodeEditor");
    QCOMPARE(module->getWidget(), kavoTestHost::docks().window("Node Editor"));
}

// Keeps the node shown, so that its rows are destroyed with the module at process exit.
void tst_Plugin::aNodeIsShownInTheWindow()
{
    reinterpret_cast<InitPlugin>(m_library.resolve("initPlugin"))();
    QVERIFY(kavoTestHost::show());
    QWidget *window = kavoTestHost::docks().window("Node Editor");
    kavoTestHost::docks().show("Node Editor");
    QTRY_VERIFY(window->isVisible());
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    kavoMessage message(kavoMessageIds::nodeShown);
    message.set("node", osg::NodePtr(truck));
    kavoController::sendMessage(message);
    QVERIFY(window->windowTitle().startsWith("Node Editor - Root ("));
}

void tst_Plugin::theProcessEndsWellWithANodeShown()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), { "aNodeIsShownInTheWindow" });
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    QVERIFY(child.readAllStandardOutput().endsWith("kavoNodeEditor::~kavoNodeEditor\n"));
}

KAVO_TEST_MAIN(tst_Plugin)
#include "tst_plugin.moc"
