#pragma once

#include "Tables/kavoTableOptions.h"

#include <OpenSG/OSGNodePtr.h>

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>
#include <QString>

/// What the command line asks for in the way of value pairs: import of a table, export of tables.
class kavoExportArguments
{
    Q_DECLARE_TR_FUNCTIONS(kavoExportArguments)

public:
    static QList<QCommandLineOption> options();

    /// \param parser has these options and has parsed
    explicit kavoExportArguments(const QCommandLineParser &parser);

    /// What is wrong with the values of the options, empty if nothing is.
    QString error() const { return m_error; }
    /// Whether there is something to run.
    bool areJobs() const;

    /// Imports first, so that what it changes comes out again, then exports.
    /// \param scene the nodes that can be changed
    /// \param part the nodes that are written
    /// \returns false if rows of the table could not be placed; standard error tells which
    /// \throws kavoTaskError if an import or export fails; the following are not run then
    bool run(const osg::NodePtr &scene, const osg::NodePtr &part) const;

private:
    static QList<QCommandLineOption> tableOptions();
    void parseTableOptions(const QCommandLineParser &parser);
    QString choose(const QCommandLineParser &parser, const QString &option,
        const QStringList &choices, const QString &preset);
    kavoPatterns parsePatterns(const QCommandLineParser &parser, const QString &option);
    /// \returns whether all rows could be placed
    bool importTable(const osg::NodePtr &scene) const;
    kavoTableOptions optionsFor(const QString &fileName) const;

    QString m_valuePairFile;
    QString m_exportFile;
    QString m_importFile;
    QString m_format; ///< empty: by the name of the file
    kavoTableOptions m_tableOptions;
    QString m_error;
};
