#pragma once

#include <QCoreApplication>
#include <QString>

#include <string>
#include <vector>

/// Splits CSV (RFC 4180) into rows of cells. Accepts CR LF, LF and CR as line ends, and skips blank
/// lines.
class kavoCsvParser
{
    Q_DECLARE_TR_FUNCTIONS(kavoCsvParser)

public:
    /// \param text must outlive the parser
    kavoCsvParser(const std::string &text, char delimiter);

    /// \returns false at the end
    /// \throws kavoTaskError if a quote is misplaced or never closed
    bool readRow(std::vector<std::string> &cells);

    /// Returns the line on which the last row begins, counted from 1.
    int line() const { return m_rowLine; }

private:
    bool atEnd() const { return m_place == m_text.size(); }
    bool atEndOfCell() const;
    bool skipLineEnd();
    std::string readCell();
    std::string readQuoted();
    [[noreturn]] void fail(const QString &reason) const;

    const std::string &m_text;
    char m_delimiter;
    std::size_t m_place = 0;
    int m_line = 1;
    int m_rowLine = 0;
};
