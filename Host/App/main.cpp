#include "kavoCommandLine.h"
#include "kavoFieldPrinter.h"
#include "kavoJobs.h"
#include "kavoMainWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>

#include <QApplication>

#include <clocale>
#include <cstdio>

namespace {

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

// Modules of plug-ins die after main() has returned and still use what these point to. They are
// never deleted; the pointers keep them reachable.
int argumentCount = 0;
QApplication *application = nullptr;
kavoMainWindow *mainWindow = nullptr;

QStringList toStringList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

bool hasDisplay(const QStringList &arguments)
{
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
        || !qEnvironmentVariableIsEmpty("DISPLAY")
        || arguments.contains(QStringLiteral("-platform"));
}

// Without a display Qt would abort. What needs none is done without one.
bool prepareDisplay(const QStringList &arguments)
{
    if (hasDisplay(arguments))
        return true;
    const kavoCommandLine commandLine(arguments);
    if (commandLine.isJob())
        std::fputs("kavo: no display, so the windows are drawn off screen\n", stderr);
    else if (commandLine.error().isEmpty() && !commandLine.wantsHelp()
        && !commandLine.wantsVersion()) {
        std::fputs("kavo: there is no display; jobs work without one, see kavo --help\n", stderr);
        return false;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return true;
}

void createApplication(int argc, char **argv)
{
    argumentCount = argc;
    application = new QApplication(argumentCount, argv);
    QApplication::setOrganizationName(QStringLiteral("kavo"));
    QApplication::setApplicationName(QStringLiteral("kavo"));
    QApplication::setApplicationVersion(QStringLiteral(KAVO_VERSION));
    // Qt has set the user's locale. OpenSG writes and reads numbers by it, and files want a point.
    std::setlocale(LC_NUMERIC, "C");
}

int printText(const QString &text)
{
    std::fputs(qUtf8Printable(text), stdout);
    return Success;
}

int printField(const QString &address)
{
    const QString error = address.isEmpty() ? QString() : kavoFieldPrinter::print(address);
    if (error.isEmpty())
        return Success;
    std::fprintf(stderr, "kavo: %s\n", qUtf8Printable(error));
    return Failure;
}

int runWindow(const kavoCommandLine &commandLine)
{
    mainWindow = new kavoMainWindow;
    mainWindow->loadPlugins(commandLine.pluginFolders());
    if (!commandLine.isJob())
        mainWindow->useSettings();
    mainWindow->show();
    kavoJobs jobs(commandLine, *mainWindow);
    jobs.start();
    const int result = QApplication::exec();
    const int printed = printField(commandLine.fieldToPrint());
    mainWindow->shutDown();
    return result == Success ? printed : result;
}

}

int main(int argc, char **argv)
{
    if (!prepareDisplay(toStringList(argc, argv)))
        return Failure;
    createApplication(argc, argv);
    const kavoCommandLine commandLine(QApplication::arguments());
    if (!commandLine.error().isEmpty()) {
        std::fprintf(stderr, "kavo: %s\nTry kavo --help.\n", qUtf8Printable(commandLine.error()));
        return WrongUsage;
    }
    if (commandLine.wantsHelp())
        return printText(commandLine.helpText());
    if (commandLine.wantsVersion())
        return printText(QStringLiteral("kavo " KAVO_VERSION "\n"));
    osg::ChangeList::setReadWriteDefault(true);
    if (!osg::osgInit(argc, argv)) {
        std::fputs("kavo: OpenSG did not start\n", stderr);
        return Failure;
    }
    return runWindow(commandLine);
}
