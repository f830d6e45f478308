#include "Window/kavoCommandLine.h"

#include "Tables/kavoExportArguments.h"

#include <QFileInfo>

namespace {

const QString helpOption = QStringLiteral("help");
const QString selectOption = QStringLiteral("select");
const QString pluginsOption = QStringLiteral("plugins");
const QString saveOption = QStringLiteral("save");
const QString screenshotOption = QStringLiteral("screenshot");
const QString printWindowOption = QStringLiteral("print-window");
const QString printFieldOption = QStringLiteral("print-field");

} // namespace

QList<QCommandLineOption> kavoCommandLine::options()
{
    return {
        { selectOption, tr("Select the node of this name, or of this container id."),
            tr("NAME-or-ID") },
        { pluginsOption, tr("Load the plug-ins of this folder too. May be given several times."),
            tr("DIR") },
        { saveOption, tr("Save the scene in this file, whose name ends in .osg, then exit."),
            tr("FILE") },
        { screenshotOption, tr("Write a picture of the main window to this file, then exit."),
            tr("FILE") },
        { printWindowOption,
            tr("Print the rows of the window docked under this key, then exit: two blanks of "
               "indent per level, the name, a tab, the value."),
            tr("KEY") },
        { printFieldOption,
            tr("When the application ends, print the text of a field: container id, a point, "
               "name."),
            tr("ID.NAME") },
    };
}

kavoCommandLine::kavoCommandLine(const QStringList &arguments)
{
    m_parser.setApplicationDescription(
        tr("Shows 3D scenes and lets you look into every part of them.\n\n"
           "Exit codes: 0 success, 1 a job failed (the reason is on standard error), "
           "2 wrong usage."));
    // Not addHelpOption(): it offers --help-all, too, whose text only showHelp() has.
    m_parser.addOption({ { QStringLiteral("h"), helpOption }, tr("Print this help.") });
    m_parser.addVersionOption();
    m_parser.addPositionalArgument(
        QStringLiteral("scene"), tr("Scene files to open."), QStringLiteral("[scene...]"));
    m_parser.addOptions(options() + kavoExportArguments::options());
    m_parsed = m_parser.parse(arguments);
}

QString kavoCommandLine::error() const
{
    return m_parsed ? wrongValue() : m_parser.errorText();
}

QString kavoCommandLine::wrongValue() const
{
    for (const QCommandLineOption &option : options()) {
        if (m_parser.values(option).contains(QString()))
            return tr("The value of --%1 is empty.").arg(option.names().first());
    }
    for (const QString &folder : pluginFolders()) {
        if (!QFileInfo(folder).isDir())
            return tr("There is no plug-in folder '%1'.").arg(folder);
    }
    return exports().error();
}

bool kavoCommandLine::wantsHelp() const
{
    return m_parser.isSet(helpOption);
}

bool kavoCommandLine::wantsVersion() const
{
    return m_parser.isSet(QStringLiteral("version"));
}

bool kavoCommandLine::isJob() const
{
    return m_parser.isSet(saveOption) || m_parser.isSet(screenshotOption)
        || m_parser.isSet(printWindowOption) || exports().areJobs();
}

QString kavoCommandLine::helpText() const
{
    return m_parser.helpText();
}

QStringList kavoCommandLine::sceneFiles() const
{
    return m_parser.positionalArguments();
}

QString kavoCommandLine::nodeToSelect() const
{
    return m_parser.value(selectOption);
}

QStringList kavoCommandLine::pluginFolders() const
{
    return m_parser.values(pluginsOption);
}

QString kavoCommandLine::screenshotFile() const
{
    return m_parser.value(screenshotOption);
}

QString kavoCommandLine::fileToSave() const
{
    return m_parser.value(saveOption);
}

QString kavoCommandLine::windowToPrint() const
{
    return m_parser.value(printWindowOption);
}

QString kavoCommandLine::fieldToPrint() const
{
    return m_parser.value(printFieldOption);
}

kavoExportArguments kavoCommandLine::exports() const
{
    return kavoExportArguments(m_parser);
}
