#include <OpenSG/OSGNumberText.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <locale.h>

OSG_BEGIN_NAMESPACE

namespace NumberText {

namespace {

locale_t classicLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

// The longest number is a long double such as -1.234567e+4932.
constexpr int longestNumber = 32;

template <class... Format> void appendChars(std::string &out, Format... format)
{
    char text[longestNumber];
    out.append(text, std::to_chars(text, text + longestNumber, format...).ptr);
}

constexpr int decimals = 6;

// Nearly all reals are plain decimals. from_chars reads these several times as fast as strtod.
// strtod still reads what from_chars treats differently: leading white space and signs,
// hexadecimal numbers, numbers out of range.
template <class T> bool readPlainReal(const char *text, T &value)
{
    const auto [end, error] = std::from_chars(text, text + std::strlen(text), value);
    return error == std::errc() && *end != 'x' && *end != 'X';
}

} // namespace

std::int64_t readSigned(const char *text)
{
    return strtoll_l(text, nullptr, 0, classicLocale());
}

std::uint64_t readUnsigned(const char *text)
{
    return strtoull_l(text, nullptr, 0, classicLocale());
}

void readReal(const char *text, float &value)
{
    if (!readPlainReal(text, value)) {
        value = strtof_l(text, nullptr, classicLocale());
    }
}

void readReal(const char *text, double &value)
{
    if (!readPlainReal(text, value)) {
        value = strtod_l(text, nullptr, classicLocale());
    }
}

void readReal(const char *text, long double &value)
{
    value = strtold_l(text, nullptr, classicLocale());
}

unsigned readReals(std::string text, float *values, unsigned count)
{
    const auto isBracketOrComma = [](char c) { return std::strchr("[](){},", c) && c != 0; };
    std::replace_if(text.begin(), text.end(), isBracketOrComma, ' ');
    const char *rest = text.c_str();
    for (unsigned i = 0; i < count; ++i) {
        char *end = nullptr;
        values[i] = strtof_l(rest, &end, classicLocale());
        if (end == rest) {
            return i;
        }
        rest = end;
    }
    return count;
}

void append(std::string &out, float value)
{
    appendChars(out, value, std::chars_format::scientific, decimals);
}

void append(std::string &out, double value)
{
    appendChars(out, value, std::chars_format::scientific, decimals);
}

void append(std::string &out, long double value)
{
    appendChars(out, value, std::chars_format::scientific, decimals);
}

void append(std::string &out, std::int64_t value)
{
    appendChars(out, value);
}

void append(std::string &out, std::uint64_t value)
{
    appendChars(out, value);
}

Tokens::Tokens(const char *text, const char *separatorCharacters)
    : _rest(text ? text : "")
    , _separators(separatorCharacters)
{
}

bool Tokens::next()
{
    _rest += std::strspn(_rest, _separators);
    const std::size_t length = std::strcspn(_rest, _separators);
    _token.assign(_rest, length);
    _rest += length;
    return length > 0;
}

} // namespace NumberText

OSG_END_NAMESPACE
