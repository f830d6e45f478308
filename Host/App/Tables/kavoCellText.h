#pragma once

#include <string>

/// Converts texts of the scene to cells of a table that a spreadsheet opens, and back.
class kavoCellText
{
public:
    /// \param decimalSeparator '.' or ','
    /// \param guardsFormulas If true, encode() puts an apostrophe before text that a spreadsheet
    /// would run as a formula, and before text that it would mistake for a number.
    explicit kavoCellText(char decimalSeparator = '.', bool guardsFormulas = false);

    /// Returns UTF-8 with U+FFFD in place of invalid bytes. Numbers get the decimal separator.
    std::string encode(const std::string &text) const;
    /// The inverse of encode(). Without a guard, text that looks like a number with a decimal comma
    /// becomes a number with a point.
    std::string decode(const std::string &cell) const;

    /// Whether the cell has the form in which encode() writes numbers.
    bool isNumber(const std::string &cell) const;

    /// Encodes a key as kavoUtf8::escaped() does, with a guard if necessary. Unlike encode(), this
    /// loses no bytes and does not change numbers: an import finds columns by their keys.
    std::string encodeKey(const std::string &key) const;
    std::string decodeKey(const std::string &cell) const;

private:
    std::string guarded(const std::string &text) const;
    bool isGuarded(const std::string &cell) const;
    bool needsGuard(const std::string &text) const;

    char m_decimalSeparator;
    bool m_guardsFormulas;
};
