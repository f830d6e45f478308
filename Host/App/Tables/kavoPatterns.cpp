#include "Tables/kavoPatterns.h"

#include "Tables/kavoUtf8.h"

#include <algorithm>

// QRegExp, because keys may have slashes, and asterisks of QRegularExpression do not match them.
kavoPatterns::kavoPatterns(const QString &patterns)
{
    for (const QString &pattern : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        m_patterns.append(QRegExp(pattern, Qt::CaseSensitive, QRegExp::WildcardUnix));
}

QString kavoPatterns::error() const
{
    for (const QRegExp &pattern : m_patterns) {
        if (!pattern.isValid())
            return tr("'%1' is no pattern: %2").arg(pattern.pattern(), pattern.errorString());
    }
    return QString();
}

bool kavoPatterns::matches(const std::string &text) const
{
    if (m_patterns.isEmpty())
        return true;
    const QString string = kavoUtf8::toString(text);
    return std::any_of(m_patterns.begin(), m_patterns.end(),
        [&](const QRegExp &pattern) { return pattern.exactMatch(string); });
}
