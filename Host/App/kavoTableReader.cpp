#include "kavoTableReader.h"

#include "kavoCsvReader.h"
#include "kavoJsonLinesReader.h"
#include "kavoTaskError.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextCodec>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("kavoTableReader", text);
}

void checkUtf8(const QByteArray &text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        throw kavoTaskError(tr("the text is not UTF-8"));
}

std::string readText(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw kavoTaskError(file.errorString());
    QByteArray text = file.readAll();
    checkUtf8(text);
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    return text.toStdString();
}

}

kavoTable kavoTableReader::read(const QString &fileName, const kavoTableOptions &options)
{
    try {
        const std::string text = readText(fileName);
        return options.format == kavoTableOptions::JsonLines ? kavoJsonLinesReader::read(text)
                                                             : kavoCsvReader::read(text, options);
    } catch (const kavoTaskError &error) {
        throw kavoTaskError(tr("Cannot import '%1': %2").arg(fileName, error.message()));
    }
}
