#pragma once

#include "Tables/kavoTableOptions.h"

#include <OpenSG/OSGNodePtr.h>

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>
#include <QString>

/// The imports and exports of value pairs that the command line asks for.
class kavoExportArguments
{
    Q_DECLARE_TR_FUNCTIONS(kavoExportArguments)

public:
    static QList<QCommandLineOption> options();

    /// \param parser knows options() and has parsed the command line
    explicit kavoExportArguments(const QCommandLineParser &parser);

    /// Returns what is wrong with the values of the options, or an empty text.
    QString error() const { return m_error; }
    bool areJobs() const;

    /// Runs the import, then the exports, which write the imported values.
    /// \param scene the root of the nodes that the import may change
    /// \param part the root of the nodes to export
    /// \returns false if rows of the table could not be placed; standard error lists them
    /// \throws kavoTaskError if a job fails; skips the remaining jobs then
    bool run(const osg::NodePtr &scene, const osg::NodePtr &part) const;

private:
    static QList<QCommandLineOption> tableOptions();
    void parseTableOptions(const QCommandLineParser &parser);
    QString choose(const QCommandLineParser &parser, const QString &option,
        const QStringList &choices, const QString &preset);
    kavoPatterns parsePatterns(const QCommandLineParser &parser, const QString &option);
    /// \returns false if rows could not be placed
    bool importTable(const osg::NodePtr &scene) const;
    kavoTableOptions optionsFor(const QString &fileName) const;

    QString m_valuePairFile;
    QString m_exportFile;
    QString m_importFile;
    QString m_format; ///< if empty, the name of the file decides
    kavoTableOptions m_tableOptions;
    QString m_error;
};
