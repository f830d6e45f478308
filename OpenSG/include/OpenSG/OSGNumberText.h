#pragma once

#include <OpenSG/OSGConfig.h>

#include <cstdint>
#include <string>
#include <type_traits>

OSG_BEGIN_NAMESPACE

/// Reads and writes numbers as text, always in the "C" locale. So files do not depend on the locale
/// of the machine.
namespace NumberText {

/// The separators between the numbers of a vector, a colour or a matrix.
constexpr const char *separators = " \t\n,";

/// Reading skips leading white space and stops at the first character that does not belong to the
/// number. It never fails: without a number the result is 0, and integers beyond 64 bits saturate.
/// Integers may be hexadecimal (0x) or octal (0).
std::int64_t readSigned(const char *text);
std::uint64_t readUnsigned(const char *text);
void readReal(const char *text, float &value);
void readReal(const char *text, double &value);
void readReal(const char *text, long double &value);

/// Reads at most `count` numbers, up to the first word that is no number. Returns the count of
/// numbers that were read. Brackets and commas count as blanks.
unsigned readReals(std::string text, float *values, unsigned count);

/// Reals are written with six decimals and an exponent (`1.500000e+00`), integers in decimal.
void append(std::string &out, float value);
void append(std::string &out, double value);
void append(std::string &out, long double value);
void append(std::string &out, std::int64_t value);
void append(std::string &out, std::uint64_t value);

/// An integer that does not fit T wraps.
template <class T> T read(const char *text)
{
    if constexpr (std::is_floating_point_v<T>) {
        T value = 0;
        readReal(text, value);
        return value;
    } else if constexpr (std::is_signed_v<T>) {
        return static_cast<T>(readSigned(text));
    } else {
        return static_cast<T>(readUnsigned(text));
    }
}

template <class T> void write(std::string &out, T value)
{
    if constexpr (std::is_floating_point_v<T>) {
        append(out, value);
    } else if constexpr (std::is_signed_v<T>) {
        append(out, static_cast<std::int64_t>(value));
    } else {
        append(out, static_cast<std::uint64_t>(value));
    }
}

template <class T>
void writeList(std::string &out, const T *values, unsigned count, const char *glue)
{
    for (unsigned i = 0; i < count; ++i) {
        if (i > 0) {
            out += glue;
        }
        write(out, values[i]);
    }
}

/// Splits a text into tokens.
class Tokens
{
public:
    explicit Tokens(const char *text, const char *separatorCharacters = separators);

    /// Moves to the next token. At the end of the text, returns false and the token is empty.
    bool next();
    const std::string &token() const { return _token; }

private:
    const char *_rest;
    const char *_separators;
    std::string _token;
};

/// Reads `count` numbers. Missing numbers become 0. Further numbers are ignored.
template <class T>
void readList(
    const char *text, T *values, unsigned count, const char *separatorCharacters = separators)
{
    Tokens tokens(text, separatorCharacters);
    for (unsigned i = 0; i < count; ++i) {
        tokens.next();
        values[i] = read<T>(tokens.token().c_str());
    }
}

} // namespace NumberText

OSG_END_NAMESPACE
