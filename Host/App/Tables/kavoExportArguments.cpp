#include "Tables/kavoExportArguments.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsvCreatorExport.h"
#include "Tables/kavoTableExport.h"
#include "Tables/kavoTableImport.h"

#include <cstdio>

namespace {

const QString valuePairsOption = QStringLiteral("export-value-pairs");
const QString exportOption = QStringLiteral("export-table");
const QString importOption = QStringLiteral("import-table");
const QString allNodesOption = QStringLiteral("all-nodes");
const QString formatOption = QStringLiteral("table-format");
const QString delimiterOption = QStringLiteral("table-delimiter");
const QString decimalOption = QStringLiteral("table-decimal");
const QString bomOption = QStringLiteral("table-bom");
const QString noGuardOption = QStringLiteral("table-no-formula-guard");
const QString keysOption = QStringLiteral("table-columns");
const QString namesOption = QStringLiteral("table-names");
const QString typesOption = QStringLiteral("table-types");
const QString nodeKeysOption = QStringLiteral("table-keys");

} // namespace

QList<QCommandLineOption> kavoExportArguments::options()
{
    return QList<QCommandLineOption> {
        { valuePairsOption,
            tr("Write the value pairs of the scene, or of the selected node and all below, to this "
               "file: a row for each node, a column for each key, nothing quoted."),
            tr("FILE") },
        { allNodesOption, tr("Export nodes that are not fully visible, too.") },
        { exportOption, tr("Write the value pairs as a table that spreadsheets open."),
            tr("FILE") },
        { importOption, tr("Write the changed values of such a table back to the nodes first."),
            tr("FILE") },
    }
    + tableOptions();
}

QList<QCommandLineOption> kavoExportArguments::tableOptions()
{
    return {
        { formatOption, tr("csv or jsonl; without it by the ending of the file's name."),
            tr("FORMAT") },
        { delimiterOption, tr("comma, semicolon or tab, or any character. Found out at an import."),
            tr("DELIMITER"), QStringLiteral("comma") },
        { decimalOption, tr("Decimal separator of the table: point or comma."), tr("SEPARATOR"),
            QStringLiteral("point") },
        { bomOption, tr("Begin the table with a byte order mark.") },
        { noGuardOption, tr("Write text as it is, even if a spreadsheet takes it for a formula.") },
        { keysOption, tr("Only columns with such keys: wildcards, separated by semicolons."),
            tr("PATTERNS") },
        { namesOption, tr("Only nodes with such names."), tr("PATTERNS") },
        { typesOption, tr("Only nodes with cores of such types."), tr("PATTERNS") },
        { nodeKeysOption, tr("Only nodes that have such a key."), tr("PATTERNS") },
    };
}

kavoExportArguments::kavoExportArguments(const QCommandLineParser &parser)
    : m_valuePairFile(parser.value(valuePairsOption))
    , m_exportFile(parser.value(exportOption))
    , m_importFile(parser.value(importOption))
{
    for (const QString &option : { valuePairsOption, exportOption, importOption }) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            m_error = tr("The value of --%1 is empty.").arg(option);
    }
    parseTableOptions(parser);
}

void kavoExportArguments::parseTableOptions(const QCommandLineParser &parser)
{
    const QStringList formats { QStringLiteral("csv"), QStringLiteral("jsonl") };
    const QStringList separators { QStringLiteral("point"), QStringLiteral("comma") };
    const QString separator = choose(parser, decimalOption, separators, separators.first());
    m_format = choose(parser, formatOption, formats, QString());
    m_tableOptions.decimalSeparator = separator == separators.first() ? '.' : ',';
    if (!m_tableOptions.setDelimiter(parser.value(delimiterOption)))
        m_error = tr("--%1 is comma, semicolon, tab or one character.").arg(delimiterOption);
    m_tableOptions.startsWithByteOrderMark = parser.isSet(bomOption);
    m_tableOptions.guardsFormulas = !parser.isSet(noGuardOption);
    m_tableOptions.keys = parsePatterns(parser, keysOption);
    m_tableOptions.nodeNames = parsePatterns(parser, namesOption);
    m_tableOptions.coreTypes = parsePatterns(parser, typesOption);
    m_tableOptions.nodeKeys = parsePatterns(parser, nodeKeysOption);
    m_tableOptions.takesAllNodes = parser.isSet(allNodesOption);
}

QString kavoExportArguments::choose(const QCommandLineParser &parser, const QString &option,
    const QStringList &choices, const QString &preset)
{
    if (!parser.isSet(option))
        return preset;
    const QString choice = parser.value(option);
    if (!choices.contains(choice))
        m_error = tr("--%1 is one of %2.").arg(option, choices.join(QStringLiteral(", ")));
    return choice;
}

kavoPatterns kavoExportArguments::parsePatterns(
    const QCommandLineParser &parser, const QString &option)
{
    const kavoPatterns patterns(parser.value(option));
    if (!patterns.error().isEmpty())
        m_error = tr("--%1: %2").arg(option, patterns.error());
    return patterns;
}

bool kavoExportArguments::areJobs() const
{
    return !m_valuePairFile.isEmpty() || !m_exportFile.isEmpty() || !m_importFile.isEmpty();
}

bool kavoExportArguments::run(const osg::NodePtr &scene, const osg::NodePtr &part) const
{
    const bool isImportComplete = m_importFile.isEmpty() || importTable(scene);
    if (!m_valuePairFile.isEmpty())
        kavoCsvCreatorExport::run(part, m_valuePairFile, m_tableOptions.takesAllNodes);
    if (!m_exportFile.isEmpty())
        kavoTableExport::run(part, m_exportFile, optionsFor(m_exportFile));
    return isImportComplete;
}

bool kavoExportArguments::importTable(const osg::NodePtr &scene) const
{
    const kavoTableImport::Report report
        = kavoTableImport::run(scene, m_importFile, optionsFor(m_importFile)).value();
    for (const QString &row : report.unplacedRows)
        std::fprintf(stderr, "kavo: %s\n", qUtf8Printable(row));
    if (!report.unplacedRows.isEmpty())
        std::fprintf(stderr, "kavo: %s\n",
            qUtf8Printable(tr("Rows of '%1' without a place in the scene: %2")
                               .arg(m_importFile, QString::number(report.unplacedRows.size()))));
    std::printf("%s\n", qUtf8Printable(report.summary()));
    std::fflush(stdout);
    return report.unplacedRows.isEmpty();
}

kavoTableOptions kavoExportArguments::optionsFor(const QString &fileName) const
{
    kavoTableOptions options = m_tableOptions;
    options.format = kavoTableOptions::formatOf(m_format.isEmpty() ? fileName : '.' + m_format);
    return options;
}
