#include "kavoPatterns.h"

#include "kavoUtf8.h"

#include <algorithm>

kavoPatterns::kavoPatterns(const QString &patterns)
{
    for (const QString &pattern : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        m_patterns.append(QRegExp(pattern, Qt::CaseSensitive, QRegExp::WildcardUnix));
}

bool kavoPatterns::matches(const std::string &text) const
{
    if (m_patterns.isEmpty())
        return true;
    const QString string = kavoUtf8::toString(text);
    return std::any_of(m_patterns.begin(), m_patterns.end(),
        [&](const QRegExp &pattern) { return pattern.exactMatch(string); });
}
