#pragma once

#include <string>

/// How a text of the scene stands in a table that a spreadsheet opens, and the way back.
class kavoCellText
{
public:
    /// \param decimalSeparator '.' or ','
    /// \param guardsFormulas whether text that a spreadsheet would run as a formula, or take for a
    /// number that it is not, gets an apostrophe before it
    explicit kavoCellText(char decimalSeparator = '.', bool guardsFormulas = false);

    /// Valid UTF-8. Numbers get the decimal separator.
    std::string encode(const std::string &text) const;
    /// The text that encode() makes this cell of. Unguarded, a text that has the form of a number
    /// with a decimal comma is taken for one.
    std::string decode(const std::string &cell) const;

    /// The text, with U+FFFD for bytes that are no UTF-8.
    static std::string validUtf8(const std::string &text);

private:
    bool needsGuard(const std::string &text) const;

    char m_decimalSeparator;
    bool m_guardsFormulas;
};
