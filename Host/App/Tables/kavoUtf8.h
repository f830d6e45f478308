#pragma once

#include <QString>

#include <string>

/// UTF-8 of texts in a scene. A scene does not say what encoding its texts have: most are UTF-8,
/// some are not.
namespace kavoUtf8 {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

bool isValid(const std::string &text);

/// Returns the text with U+FFFD in place of each invalid byte.
std::string valid(const std::string &text);

/// Converts the text like valid(), and keeps a byte order mark.
QString toString(const std::string &text);

/// Returns valid UTF-8 that differs for different texts: writes an invalid byte as % and two
/// hexadecimal digits, and escapes in the same way a % that would look like such an escape.
std::string escaped(const std::string &text);
/// The inverse of escaped().
std::string unescaped(const std::string &text);

/// Appends % and the byte's two hexadecimal digits.
void appendEscape(std::string &text, char byte);
/// Returns the length in bytes of the character at that place, or 0 if it is invalid.
std::size_t lengthAt(const std::string &text, std::size_t place);

} // namespace kavoUtf8
