#include "Tables/kavoTableFile.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsv.h"
#include "Tables/kavoJsonLines.h"
#include "Tables/kavoUtf8.h"

#include <QCoreApplication>
#include <QFile>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kavoTableFile)
};

std::string readText(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw kavoTaskError(file.errorString());
    std::string text = file.readAll().toStdString();
    if (!kavoUtf8::isValid(text))
        throw kavoTaskError(Text::tr("the text is not UTF-8"));
    if (text.compare(0, 3, kavoUtf8::byteOrderMark) == 0)
        text.erase(0, 3);
    return text;
}

} // namespace

kavoImportedTable kavoTableFile::read(const QString &fileName, const kavoTableOptions &options)
{
    try {
        const std::string text = readText(fileName);
        const bool isJson
            = options.format == kavoTableOptions::JsonLines || text.compare(0, 1, "{") == 0;
        return isJson ? kavoJsonLines::read(text) : kavoCsv::read(text, options);
    } catch (const kavoTaskError &error) {
        throw kavoTaskError(Text::tr("Cannot import '%1': %2").arg(fileName, error.message()));
    }
}

std::unique_ptr<kavoRowWriter> kavoTableFile::createWriter(
    std::ostream &out, const kavoTableOptions &options)
{
    if (options.format == kavoTableOptions::JsonLines)
        return kavoJsonLines::createWriter(out);
    return kavoCsv::createWriter(out, options);
}
