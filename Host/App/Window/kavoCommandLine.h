#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

class kavoExportArguments;

/// The parsed command line.
///
/// With a job (--screenshot, --export-table, ...) the application runs it and ends. Without a job
/// it stays open.
class kavoCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(kavoCommandLine)

public:
    /// Parses the arguments and does nothing else.
    /// \param arguments as main() receives them, with the program's name first
    explicit kavoCommandLine(const QStringList &arguments);

    /// What is wrong with the arguments; empty if they are valid.
    QString error() const;
    bool wantsHelp() const;
    bool wantsVersion() const;
    bool isJob() const;

    /// Needs an application object, because the text contains its name.
    QString helpText() const;

    QStringList sceneFiles() const;
    /// Name or id of the node to select; empty if no node is to be selected.
    QString nodeToSelect() const;
    /// Plug-in folders besides the default one.
    QStringList pluginFolders() const;
    QString screenshotFile() const;
    /// The file to save the scene in.
    QString fileToSave() const;
    /// Key of the dock window to print.
    QString windowToPrint() const;
    /// Field to print when the application ends, in the form that kavoFieldPrinter expects.
    QString fieldToPrint() const;
    /// The jobs that import and export value pairs.
    kavoExportArguments exports() const;

private:
    static QList<QCommandLineOption> options();
    QString wrongValue() const;

    QCommandLineParser m_parser;
    bool m_parsed;
};
