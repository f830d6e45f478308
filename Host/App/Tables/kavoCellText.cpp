#include "Tables/kavoCellText.h"

#include "Tables/kavoUtf8.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr char guard = '\'';

const char *skipSign(const char *c)
{
    return *c == '+' || *c == '-' ? c + 1 : c;
}

const char *skipDigits(const char *c)
{
    while (std::isdigit(static_cast<unsigned char>(*c)))
        ++c;
    return c;
}

// Digits with at most one separator, and an optional exponent.
bool hasFormOfNumber(const std::string &text, char separator)
{
    const char *begin = skipSign(text.c_str());
    const char *end = skipDigits(begin);
    bool hasDigits = end != begin;
    if (*end == separator) {
        begin = end + 1;
        end = skipDigits(begin);
        hasDigits = hasDigits || end != begin;
    }
    if (hasDigits && (*end == 'e' || *end == 'E')) {
        begin = skipSign(end + 1);
        end = skipDigits(begin);
        hasDigits = end != begin;
    }
    return hasDigits && end == text.c_str() + text.size();
}

std::string replaced(std::string text, char from, char to)
{
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

} // namespace

kavoCellText::kavoCellText(char decimalSeparator, bool guardsFormulas)
    : m_decimalSeparator(decimalSeparator)
    , m_guardsFormulas(guardsFormulas)
{
}

std::string kavoCellText::encode(const std::string &text) const
{
    if (hasFormOfNumber(text, '.'))
        return replaced(text, '.', m_decimalSeparator);
    return guarded(kavoUtf8::valid(text));
}

std::string kavoCellText::decode(const std::string &cell) const
{
    if (isGuarded(cell))
        return cell.substr(1);
    if (isNumber(cell))
        return replaced(cell, m_decimalSeparator, '.');
    return cell;
}

bool kavoCellText::isNumber(const std::string &cell) const
{
    return hasFormOfNumber(cell, m_decimalSeparator);
}

std::string kavoCellText::encodeKey(const std::string &key) const
{
    return guarded(kavoUtf8::escaped(key));
}

std::string kavoCellText::decodeKey(const std::string &cell) const
{
    return kavoUtf8::unescaped(isGuarded(cell) ? cell.substr(1) : cell);
}

std::string kavoCellText::guarded(const std::string &text) const
{
    return m_guardsFormulas && needsGuard(text) ? guard + text : text;
}

bool kavoCellText::isGuarded(const std::string &cell) const
{
    return m_guardsFormulas && !cell.empty() && cell.front() == guard;
}

// A text that starts with an apostrophe needs a guard too, or decode() would remove its apostrophe.
bool kavoCellText::needsGuard(const std::string &text) const
{
    static const std::string starters = "=+-@\t\r\n'";
    if (text.empty())
        return false;
    return starters.find(text.front()) != std::string::npos || isNumber(text);
}
