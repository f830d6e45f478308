#include "Tables/kavoTableOptions.h"

#include <QMap>

kavoTableOptions::Format kavoTableOptions::formatOf(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".jsonl"), Qt::CaseInsensitive) ? JsonLines : Csv;
}

bool kavoTableOptions::setDelimiter(const QString &text)
{
    static const QMap<QString, QChar> names { { QStringLiteral("comma"), QLatin1Char(',') },
        { QStringLiteral("semicolon"), QLatin1Char(';') },
        { QStringLiteral("tab"), QLatin1Char('\t') } };
    const QString character = names.contains(text) ? QString(names.value(text)) : text;
    const bool isUsable = character.size() == 1 && character[0].unicode() < 0x80
        && !QStringLiteral("\"\r\n").contains(character) && !character[0].isNull();
    if (isUsable)
        delimiter = character[0].toLatin1();
    return isUsable;
}
