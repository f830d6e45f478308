#pragma once

#include <QCoreApplication>
#include <QList>
#include <QRegExp>
#include <QString>

#include <string>

/// A list of wildcard patterns. A text matches if it matches one of them.
class kavoPatterns
{
    Q_DECLARE_TR_FUNCTIONS(kavoPatterns)

public:
    /// \param patterns separated by semicolons; case-sensitive. * is any text, ? is any character,
    /// [ab] is one of these. An empty list matches every text.
    explicit kavoPatterns(const QString &patterns = QString());

    /// Returns what is wrong with the patterns in words for the user, or an empty text. A malformed
    /// pattern matches nothing.
    QString error() const;

    bool matches(const std::string &text) const;

private:
    QList<QRegExp> m_patterns;
};
