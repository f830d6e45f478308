#include "Basics/kavoStandardOutput.h"
#include "Basics/kavoTry.h"
#include "Window/kavoCommandLine.h"
#include "Window/kavoFieldPrinter.h"
#include "Window/kavoJobs.h"
#include "Window/kavoMainWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>

#include <QApplication>

#include <algorithm>
#include <clocale>
#include <cstdio>

namespace {

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

// Modules of plug-ins are destroyed after main() has returned and still use these objects. So the
// objects are never deleted; the pointers keep them reachable for the leak checker.
int argumentCount = 0;
QApplication *application = nullptr;
kavoMainWindow *mainWindow = nullptr;

// Does not check that the X server answers: Qt does, reports it and aborts.
bool hasDisplay(int argc, char **argv)
{
    const auto choosesPlatform = [](const char *argument) {
        return qstrcmp(argument, "-platform") == 0 || qstrcmp(argument, "--platform") == 0;
    };
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
        || !qEnvironmentVariableIsEmpty("DISPLAY")
        || std::any_of(argv + 1, argv + argc, choosesPlatform);
}

void createApplication(int argc, char **argv)
{
    argumentCount = argc;
    application = new QApplication(argumentCount, argv);
    QApplication::setOrganizationName(QStringLiteral("kavo"));
    QApplication::setApplicationName(QStringLiteral("kavo"));
    QApplication::setApplicationVersion(QStringLiteral(KAVO_VERSION));
    // Qt has set the user's locale. OpenSG uses it for numbers, but files need a decimal point.
    std::setlocale(LC_NUMERIC, "C");
}

int fail(const QString &reason)
{
    std::fprintf(stderr, "kavo: %s\n", qUtf8Printable(reason));
    return Failure;
}

template <class Task> int run(Task task)
{
    const auto reason = kavoTry(task);
    return reason ? fail(*reason) : Success;
}

int printText(const QString &text)
{
    return run([&] { kavoStandardOutput::write(text.toUtf8()); });
}

int printField(const QString &address)
{
    return address.isEmpty() ? Success : run([&] { kavoFieldPrinter::print(address); });
}

int runWindow(const kavoCommandLine &commandLine)
{
    mainWindow = new kavoMainWindow;
    mainWindow->loadPlugins(commandLine.pluginFolders());
    if (!commandLine.isJob())
        mainWindow->useSettings();
    mainWindow->show();
    kavoJobs jobs(commandLine, mainWindow->session(), mainWindow->docks(), *mainWindow);
    QObject::connect(&jobs, &kavoJobs::failed, mainWindow, &kavoMainWindow::reportError);
    jobs.start();
    QApplication::exec();
    const int printed = printField(commandLine.fieldToPrint());
    mainWindow->shutDown(); // cancels loading, so that the jobs fail
    return jobs.exitCode() == Success ? printed : jobs.exitCode();
}

} // namespace

int main(int argc, char **argv)
{
    // Without a display Qt would abort, although jobs need none.
    const bool isOffScreen = !hasDisplay(argc, argv);
    if (isOffScreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    createApplication(argc, argv);
    const kavoCommandLine commandLine(QApplication::arguments()); // without the options of Qt
    if (!commandLine.error().isEmpty()) {
        fail(commandLine.error() + "\nTry kavo --help.");
        return WrongUsage;
    }
    if (commandLine.wantsHelp())
        return printText(commandLine.helpText());
    if (commandLine.wantsVersion())
        return printText(QStringLiteral("kavo " KAVO_VERSION "\n"));
    if (isOffScreen && !commandLine.isJob())
        return fail("there is no display; jobs work without one, see kavo --help");
    if (isOffScreen)
        std::fputs("kavo: no display, so the windows are drawn off screen\n", stderr);
    osg::ChangeList::setReadWriteDefault(true);
    if (!osg::osgInit(argc, argv))
        return fail("OpenSG did not start");
    return runWindow(commandLine);
}
