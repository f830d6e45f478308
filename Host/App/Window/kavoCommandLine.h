#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

class kavoExportArguments;

/// What the user asked for on the command line.
///
/// A command line with a job (--screenshot, --export-table, ...) runs it and ends; without one the
/// application stays open.
class kavoCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(kavoCommandLine)

public:
    /// Parses without any effect of its own.
    /// \param arguments as main() receives them, the program's name first
    explicit kavoCommandLine(const QStringList &arguments);

    /// What is wrong with the arguments, empty if nothing is.
    QString error() const;
    bool wantsHelp() const;
    bool wantsVersion() const;
    bool isJob() const;

    /// Needs an application object, whose name it shows.
    QString helpText() const;

    QStringList sceneFiles() const;
    /// Name or id of the node to select, empty for none.
    QString nodeToSelect() const;
    /// Plug-in folders besides the default one.
    QStringList pluginFolders() const;
    QString screenshotFile() const;
    /// Where to save the scene.
    QString fileToSave() const;
    /// Key of the dock window to print.
    QString windowToPrint() const;
    /// Field to print when the application ends, as kavoFieldPrinter takes it.
    QString fieldToPrint() const;
    /// Import and export of value pairs.
    kavoExportArguments exports() const;

private:
    static QList<QCommandLineOption> options();
    QString wrongValue() const;

    QCommandLineParser m_parser;
    bool m_parsed;
};
