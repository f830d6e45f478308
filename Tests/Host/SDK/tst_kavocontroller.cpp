#include <kavoController.h>
#include <kavoLog.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoModuleBase.h>

#include <QTest>

#include <functional>
#include <memory>
#include <stdexcept>

namespace {

class Listener : public kavoModuleBase
{
public:
    explicit Listener(unsigned int mask)
        : kavoModuleBase("Listener", "Test", mask)
    {
    }

    bool receivedMessage(kavoMessage &message) override
    {
        received << message.id();
        if (throws)
            throw std::runtime_error("no ears");
        if (onMessage)
            onMessage();
        return true;
    }
    void init() override { ++inits; }

    QList<int> received;
    std::function<void()> onMessage;
    bool throws = false;
    int inits = 0;
};

QStringList calls;

void first(kavoMessage &message)
{
    calls << "first";
    message.set("seen", true);
}

void second(kavoMessage &)
{
    calls << "second";
}

void removesSecond(kavoMessage &)
{
    calls << "removesSecond";
    kavoController::subCB("job", second);
}

void addsSecond(kavoMessage &)
{
    calls << "addsSecond";
    kavoController::addCB("job", second);
}

void throwsAnInt(kavoMessage &)
{
    throw 42;
}

void send(int id)
{
    kavoMessage message(id);
    kavoController::sendMessage(message);
}

int call(const char *name)
{
    kavoMessage message;
    return kavoController::call(name, message, 0);
}

QString lastLogLine()
{
    return QString::fromStdString(kavoLog::history().back().text);
}

} // namespace

class tst_kavoController : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void modulesRegisterInOrderAndLeaveWhenDestroyed();
    void aModuleKnowsWhatItWasMadeWith();
    void aMessageReachesModulesWhoseMaskHasItsBit_data();
    void aMessageReachesModulesWhoseMaskHasItsBit();
    void everyModuleHearsAMessageThatAnotherOneUsed();
    void aModuleThatThrowsIsLoggedAndStays();
    void aModuleDestroyedWhileAMessageIsSentHearsNothing();
    void initReachesEveryModule();
    void callRunsEveryCallbackOfTheNameInOrder();
    void callbacksShareTheMessage();
    void anUnknownNameCallsNothing();
    void addingTheSameCallbackAgainChangesNothing();
    void subCBRemovesOneCallback();
    void subCBWithoutACallbackRemovesAllOfTheName();
    void aCallbackRemovedMeanwhileIsNotRun();
    void aCallbackAddedMeanwhileRunsNextTime();
    void aCallbackThatThrowsIsLoggedAndTheOthersRun();
};

void tst_kavoController::cleanup()
{
    kavoController::subCB("job");
    calls.clear();
}

void tst_kavoController::modulesRegisterInOrderAndLeaveWhenDestroyed()
{
    Listener a(0);
    {
        Listener b(0);
        QCOMPARE(kavoModuleBase::modules(), (std::vector<kavoModuleBase *> { &a, &b }));
    }
    QCOMPARE(kavoModuleBase::modules(), std::vector<kavoModuleBase *> { &a });
}

void tst_kavoController::aModuleKnowsWhatItWasMadeWith()
{
    const Listener module(0x81130);
    QCOMPARE(module.name(), std::string("Listener"));
    QCOMPARE(module.group(), std::string("Test"));
    QCOMPARE(module.messageMask(), 0x81130u);
    QVERIFY(!module.icon());
    QVERIFY(!module.getWidget());
}

void tst_kavoController::aMessageReachesModulesWhoseMaskHasItsBit_data()
{
    using namespace kavoMessageIds;
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("arrives");
    QTest::newRow("scene cleared") << sceneCleared << true;
    QTest::newRow("scene loaded") << sceneLoaded << false;
    QTest::newRow("node shown") << nodeShown << true;
    QTest::newRow("scene graph changed") << sceneGraphChanged << false;
    QTest::newRow("selection changed") << selectionChanged << true;
    QTest::newRow("no bit at all") << 0 << false;
}

void tst_kavoController::aMessageReachesModulesWhoseMaskHasItsBit()
{
    QFETCH(int, id);
    QFETCH(bool, arrives);
    Listener module(0x10 | 0x100 | 0x80000);
    send(id);
    QCOMPARE(module.received, arrives ? QList<int> { id } : QList<int> {});
}

void tst_kavoController::everyModuleHearsAMessageThatAnotherOneUsed()
{
    Listener a(0x10), b(0x10);
    send(0x10);
    QCOMPARE(a.received.size(), 1);
    QCOMPARE(b.received.size(), 1);
}

void tst_kavoController::aModuleThatThrowsIsLoggedAndStays()
{
    Listener a(0x10), b(0x10);
    a.throws = true;
    send(0x10);
    QCOMPARE(lastLogLine(), QStringLiteral("Module 'Listener' failed: no ears"));
    send(0x10);
    QCOMPARE(a.received.size(), 2);
    QCOMPARE(b.received.size(), 2);
}

void tst_kavoController::aModuleDestroyedWhileAMessageIsSentHearsNothing()
{
    Listener a(0x10);
    auto b = std::make_unique<Listener>(0x10);
    a.onMessage = [&b] { b.reset(); };
    send(0x10);
    QCOMPARE(a.received.size(), 1);
}

void tst_kavoController::initReachesEveryModule()
{
    Listener a(0), b(0);
    kavoController::notifyModules(&kavoModuleBase::init);
    QCOMPARE(a.inits + b.inits, 2);
}

void tst_kavoController::callRunsEveryCallbackOfTheNameInOrder()
{
    kavoController::addCB("job", first);
    kavoController::addCB("job", second);
    kavoController::addCB("other job", second);
    QCOMPARE(call("job"), 2);
    QCOMPARE(calls, (QStringList { "first", "second" }));
    kavoController::subCB("other job");
}

void tst_kavoController::callbacksShareTheMessage()
{
    kavoController::addCB("job", first);
    kavoMessage message;
    kavoController::call("job", message, 0);
    QVERIFY(!message.get("seen").empty());
}

void tst_kavoController::anUnknownNameCallsNothing()
{
    QCOMPARE(call("nobody registered this"), 0);
}

void tst_kavoController::addingTheSameCallbackAgainChangesNothing()
{
    kavoController::addCB("job", first);
    kavoController::addCB("job", first);
    QCOMPARE(call("job"), 1);
}

void tst_kavoController::subCBRemovesOneCallback()
{
    kavoController::addCB("job", first);
    kavoController::addCB("job", second);
    kavoController::subCB("job", first);
    call("job");
    QCOMPARE(calls, QStringList { "second" });
}

void tst_kavoController::subCBWithoutACallbackRemovesAllOfTheName()
{
    kavoController::addCB("job", first);
    kavoController::addCB("job", second);
    kavoController::subCB("job");
    QCOMPARE(call("job"), 0);
    kavoController::subCB("job");
}

void tst_kavoController::aCallbackRemovedMeanwhileIsNotRun()
{
    kavoController::addCB("job", removesSecond);
    kavoController::addCB("job", second);
    QCOMPARE(call("job"), 1);
    QCOMPARE(calls, QStringList { "removesSecond" });
}

void tst_kavoController::aCallbackAddedMeanwhileRunsNextTime()
{
    kavoController::addCB("job", addsSecond);
    QCOMPARE(call("job"), 1);
    QCOMPARE(call("job"), 2);
}

void tst_kavoController::aCallbackThatThrowsIsLoggedAndTheOthersRun()
{
    kavoController::addCB("job", throwsAnInt);
    kavoController::addCB("job", second);
    call("job");
    QCOMPARE(calls, QStringList { "second" });
    QCOMPARE(lastLogLine(), QStringLiteral("Callback 'job' failed with an unknown exception"));
}

QTEST_GUILESS_MAIN(tst_kavoController)
#include "tst_kavocontroller.moc"
