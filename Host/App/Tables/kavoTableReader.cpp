#include "Tables/kavoTableReader.h"

#include "Basics/kavoTaskError.h"
#include "Tables/kavoCsvReader.h"
#include "Tables/kavoJsonLinesReader.h"
#include "Tables/kavoUtf8.h"

#include <QFile>

namespace {

std::string readText(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw kavoTaskError(file.errorString());
    std::string text = file.readAll().toStdString();
    if (!kavoUtf8::isValid(text))
        throw kavoTaskError(kavoTableReader::tr("the text is not UTF-8"));
    if (text.compare(0, 3, "\xEF\xBB\xBF") == 0)
        text.erase(0, 3);
    return text;
}

}

kavoTable kavoTableReader::read(const QString &fileName, const kavoTableOptions &options)
{
    try {
        const std::string text = readText(fileName);
        const bool isJson
            = options.format == kavoTableOptions::JsonLines || text.compare(0, 1, "{") == 0;
        return isJson ? kavoJsonLinesReader::read(text) : kavoCsvReader::read(text, options);
    } catch (const kavoTaskError &error) {
        throw kavoTaskError(tr("Cannot import '%1': %2").arg(fileName, error.message()));
    }
}
