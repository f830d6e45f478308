#pragma once

#include <QList>
#include <QRegExp>
#include <QString>

#include <string>

/// Wildcard patterns, of which a text must match one.
class kavoPatterns
{
public:
    /// \param patterns separated by semicolons: * any text, ? any letter, [ab] one of these. Upper
    /// and lower case differ. An empty list matches everything.
    explicit kavoPatterns(const QString &patterns = QString());

    bool matches(const std::string &text) const;

private:
    QList<QRegExp> m_patterns;
};
