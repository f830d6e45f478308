#pragma once

#include <QString>

#include <string>

/// Texts of the scene are bytes that mostly, but not always, are UTF-8.
class kavoUtf8
{
public:
    static bool isValid(const std::string &text);

    /// The text with U+FFFD for each byte that is no UTF-8.
    static std::string valid(const std::string &text);

    /// The same as a string, of which nothing is lost, not even a byte order mark.
    static QString toString(const std::string &text);

    /// UTF-8 that tells different texts apart: bytes that are none become % and two hexadecimal
    /// digits, and so does a % that would look like the beginning of such a byte.
    static std::string escaped(const std::string &text);
    /// The text that escaped() makes this one of.
    static std::string unescaped(const std::string &text);

    /// Appends % and the byte's two hexadecimal digits.
    static void appendEscape(std::string &text, char byte);
    /// How many bytes the character at that place takes, 0 if it is no UTF-8.
    static std::size_t lengthAt(const std::string &text, std::size_t place);
};
