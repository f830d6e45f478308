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

    /// UTF-8, with U+FFFD for bytes that are none. Numbers get the decimal separator.
    std::string encode(const std::string &text) const;
    /// The text that encode() makes this cell of. Unguarded, a text that has the form of a number
    /// with a decimal comma is taken for one.
    std::string decode(const std::string &cell) const;

    /// Whether the cell is a number as encode() writes it.
    bool isNumber(const std::string &cell) const;

    /// The same as encode() for keys, at which columns are known again: the bytes of any key come
    /// back, and none is taken for a number. kavoUtf8::escaped() tells how.
    std::string encodeKey(const std::string &key) const;
    std::string decodeKey(const std::string &cell) const;

private:
    std::string guarded(const std::string &text) const;
    bool isGuarded(const std::string &cell) const;
    bool needsGuard(const std::string &text) const;

    char m_decimalSeparator;
    bool m_guardsFormulas;
};
