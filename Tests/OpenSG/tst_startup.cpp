#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGIDString.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QProcess>
#include <QtTest>

#include <cstring>
#include <iostream>
#include <map>
#include <sstream>

/// Start and stop happen once in a process, so the slots run this program again, with the name
/// of a scenario, and compare what that prints.
class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void functionsRunByPhase();
    void aSecondInitRunsNothingNew();
    void aFailingFunctionEndsTheStart();
    void aNewFunctionMayBeAddedWhileOthersRun();
    void anotherMajorVersionEndsTheProcess();
    void anotherMinorVersionWarns();
    void exitDoesNothingUnlessRunning();
    void exitRunsAtTheEndOfTheProcess();
    void exitRunsInReverseOrder();
    void aMissingSharedObjectWarns();
    void theEnvironmentNamesSharedObjects();
    void noSharedObjectIsNoneToLoad();
    void beforeTheStartNothingIsMade();

    void anIdStringOwnsACopy();
    void aLinkedIdStringDoesNot();
    void aNullIdStringCountsAsEmpty();
};

namespace {

bool say(const char *text)
{
    std::cout << text << std::endl;
    return true;
}

bool start()
{
    return osg::osgInit(0, nullptr);
}

void functionsRunByPhase()
{
    osg::addInitFunction([] { return say("init"); });
    osg::addPreMPInitFunction([] { return say("before threads"); });
    osg::addInitFunction([] { return say("second init"); });
    start();
    say(osg::GlobalSystemState == osg::Running ? "running" : "not running");
}

void aSecondInitRunsNothingNew()
{
    osg::addInitFunction([] { return say("init"); });
    start();
    say(start() ? "true" : "false");
}

void aFailingFunctionEndsTheStart()
{
    osg::addInitFunction([] { return false; });
    osg::addInitFunction([] { return say("never"); });
    say(start() ? "true" : "false");
    say(osg::GlobalSystemState == osg::Startup ? "startup" : "other");
}

void aNewFunctionMayBeAddedWhileOthersRun()
{
    osg::addInitFunction([] {
        osg::addInitFunction([] { return say("added"); });
        return say("init");
    });
    start();
    start();
}

void anotherMajorVersionEndsTheProcess()
{
    osg::osgInit(0, nullptr, 2, 0, 0);
    say("never");
}

void anotherMinorVersionWarns()
{
    say(osg::osgInit(0, nullptr, 1, 7, 0) ? "true" : "false");
}

void exitDoesNothingUnlessRunning()
{
    osg::addSystemExitFunction([] { return say("never"); });
    say(osg::osgExit() ? "true" : "false");
}

void exitRunsAtTheEndOfTheProcess()
{
    osg::addSystemExitFunction([] { return say("exit"); });
    start();
    say("end of main");
}

void exitRunsInReverseOrder()
{
    osg::addPostMPExitFunction([] { return say("after threads"); });
    osg::addSystemExitFunction([] { return say("first"); });
    osg::addSystemExitFunction([] { return say("second"); });
    start();
    osg::osgExit();
    say(osg::GlobalSystemState == osg::Shutdown ? "shut down" : "other");
}

void aMissingSharedObjectWarns()
{
    osg::preloadSharedObject("libDoesNotExist.so");
    start();
}

void theEnvironmentNamesSharedObjects()
{
    qputenv("OSG_LOAD_LIBS", "libNotHere.so:libNotThere.so");
    start();
}

void noSharedObjectIsNoneToLoad()
{
    osg::preloadSharedObject(nullptr);
    say(start() ? "true" : "false");
}

void beforeTheStartNothingIsMade()
{
    say(osg::makeBox(1.f, 1.f, 1.f, 1, 1, 1) == osg::NullFC ? "no box" : "a box");
    say(osg::makeSphereGeo(1, 1.f) == osg::NullFC ? "no sphere" : "a sphere");
    say(osg::getDefaultMaterial() == osg::NullFC ? "no material" : "a material");
    say(osg::GroupNodePtr::create() == osg::NullFC ? "no group" : "a group");
}

const std::map<std::string, void (*)()> scenarios {
    { "functionsRunByPhase", functionsRunByPhase },
    { "aSecondInitRunsNothingNew", aSecondInitRunsNothingNew },
    { "aFailingFunctionEndsTheStart", aFailingFunctionEndsTheStart },
    { "aNewFunctionMayBeAddedWhileOthersRun", aNewFunctionMayBeAddedWhileOthersRun },
    { "anotherMajorVersionEndsTheProcess", anotherMajorVersionEndsTheProcess },
    { "anotherMinorVersionWarns", anotherMinorVersionWarns },
    { "exitDoesNothingUnlessRunning", exitDoesNothingUnlessRunning },
    { "exitRunsAtTheEndOfTheProcess", exitRunsAtTheEndOfTheProcess },
    { "exitRunsInReverseOrder", exitRunsInReverseOrder },
    { "aMissingSharedObjectWarns", aMissingSharedObjectWarns },
    { "theEnvironmentNamesSharedObjects", theEnvironmentNamesSharedObjects },
    { "noSharedObjectIsNoneToLoad", noSharedObjectIsNoneToLoad },
    { "beforeTheStartNothingIsMade", beforeTheStartNothingIsMade },
};

struct Outcome
{
    QByteArray output;
    QByteArray errors;
    int exitCode;
};

Outcome runCurrentScenario()
{
    QProcess process;
    process.start(
        QCoreApplication::applicationFilePath(), { "--scenario", QTest::currentTestFunction() });
    process.waitForFinished();
    return { process.readAllStandardOutput(), process.readAllStandardError(), process.exitCode() };
}

} // namespace

void tst_Startup::functionsRunByPhase()
{
    QCOMPARE(
        runCurrentScenario().output, QByteArray("before threads\ninit\nsecond init\nrunning\n"));
}

void tst_Startup::aSecondInitRunsNothingNew()
{
    QCOMPARE(runCurrentScenario().output, QByteArray("init\ntrue\n"));
}

void tst_Startup::aFailingFunctionEndsTheStart()
{
    QCOMPARE(runCurrentScenario().output, QByteArray("false\nstartup\n"));
}

void tst_Startup::aNewFunctionMayBeAddedWhileOthersRun()
{
    QCOMPARE(runCurrentScenario().output, QByteArray("init\nadded\n"));
}

void tst_Startup::anotherMajorVersionEndsTheProcess()
{
    const Outcome outcome = runCurrentScenario();
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.output.isEmpty());
    QVERIFY(outcome.errors.startsWith("FATAL:  "));
}

void tst_Startup::anotherMinorVersionWarns()
{
    const Outcome outcome = runCurrentScenario();
    QCOMPARE(outcome.output, QByteArray("true\n"));
    QVERIFY(outcome.errors.startsWith("WARNING:  "));
}

void tst_Startup::exitDoesNothingUnlessRunning()
{
    QCOMPARE(runCurrentScenario().output, QByteArray("true\n"));
}

void tst_Startup::exitRunsAtTheEndOfTheProcess()
{
    QCOMPARE(runCurrentScenario().output, QByteArray("end of main\nexit\n"));
}

void tst_Startup::exitRunsInReverseOrder()
{
    QCOMPARE(runCurrentScenario().output, QByteArray("second\nfirst\nafter threads\nshut down\n"));
}

void tst_Startup::aMissingSharedObjectWarns()
{
    QVERIFY(runCurrentScenario().errors.contains(
        "WARNING:  Couldn't load shared object libDoesNotExist.so"));
}

void tst_Startup::theEnvironmentNamesSharedObjects()
{
    const QByteArray errors = runCurrentScenario().errors;
    QVERIFY(errors.contains("libNotHere.so"));
    QVERIFY(errors.contains("libNotThere.so"));
}

void tst_Startup::noSharedObjectIsNoneToLoad()
{
    NOT_IN_STOCK("stock 1.8 crashes where a name is NULL");
    const Outcome outcome = runCurrentScenario();
    QCOMPARE(outcome.output, QByteArray("true\n"));
    QCOMPARE(outcome.errors, QByteArray());
}

void tst_Startup::beforeTheStartNothingIsMade()
{
    NOT_IN_STOCK("stock 1.8 crashes before its start");
    QCOMPARE(runCurrentScenario().output, QByteArray("no box\nno sphere\nno material\nno group\n"));
}

void tst_Startup::anIdStringOwnsACopy()
{
    char text[] = "name";
    const osg::IDString string(text);
    const osg::IDString copy(string);
    text[0] = 'f';
    QCOMPARE(string.str(), "name");
    QVERIFY(copy == string);
    QVERIFY(copy.str() != string.str());
    QCOMPARE(string.getLength(), osg::UInt32(4));
}

void tst_Startup::aLinkedIdStringDoesNot()
{
    const char *text = "name";
    osg::IDString string(text, osg::IDString::LINK);
    QCOMPARE(static_cast<const void *>(string.str()), static_cast<const void *>(text));
    string.set("other");
    QVERIFY(string > osg::IDString("name"));
}

void tst_Startup::aNullIdStringCountsAsEmpty()
{
    const osg::IDString string;
    QVERIFY(!string.str());
    QVERIFY(string.isEmpty());
    QVERIFY(string == osg::IDString(""));
    std::ostringstream stream;
    stream << string << osg::IDString("x");
    QCOMPARE(stream.str(), std::string("x"));
}

int main(int argc, char **argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--scenario") == 0) {
        scenarios.at(argv[2])();
        return 0;
    }
    QCoreApplication application(argc, argv);
    tst_Startup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
