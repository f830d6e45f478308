#pragma once

#include <QCoreApplication>
#include <QList>
#include <QRegExp>
#include <QString>

#include <string>

/// Wildcard patterns, of which a text must match one.
class kavoPatterns
{
    Q_DECLARE_TR_FUNCTIONS(kavoPatterns)

public:
    /// \param patterns separated by semicolons: * any text, ? any character, [ab] one of these.
    /// Upper and lower case differ. An empty list matches everything.
    explicit kavoPatterns(const QString &patterns = QString());

    /// What is wrong with the patterns, in words for the user; empty if nothing is. A wrong pattern
    /// matches nothing.
    QString error() const;

    bool matches(const std::string &text) const;

private:
    QList<QRegExp> m_patterns;
};
