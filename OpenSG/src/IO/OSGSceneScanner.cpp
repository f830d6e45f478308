#include "IO/OSGSceneScanner.h"

#include <algorithm>
#include <array>
#include <unordered_set>

OSG_BEGIN_NAMESPACE

namespace {

enum CharacterClass : UInt8 {
    Separator = 0x01,
    Digit = 0x02,
    HexDigit = 0x04,
    BeginsIdentifier = 0x08,
    ContinuesIdentifier = 0x10
};

constexpr bool contains(std::string_view set, char character)
{
    return set.find(character) != std::string_view::npos;
}

constexpr UInt8 classify(UInt8 code)
{
    const char character = static_cast<char>(code);
    UInt8 classes = 0;
    if (contains(" \t\n\v\f\r,", character)) {
        classes |= Separator;
    }
    if (contains("0123456789", character)) {
        classes |= Digit;
    }
    if (contains("0123456789abcdefABCDEF", character)) {
        classes |= HexDigit;
    }
    const bool isPrintable = code > 0x20 && code != 0x7f;
    if (isPrintable && !contains("\"#'+,-.0123456789[\\]{}", character)) {
        classes |= BeginsIdentifier;
    }
    if (isPrintable && !contains("\"#',.[\\]{}", character)) {
        classes |= ContinuesIdentifier;
    }
    return classes;
}

constexpr std::array<UInt8, 256> classifyAll()
{
    std::array<UInt8, 256> table {};
    for (std::size_t code = 0; code < table.size(); ++code) {
        table[code] = classify(static_cast<UInt8>(code));
    }
    return table;
}

constexpr std::array<UInt8, 256> classTable = classifyAll();

bool is(CharacterClass which, char character)
{
    return classTable[static_cast<UInt8>(character)] & which;
}

// The reserved words of VRML, from which the format is derived. Most have no meaning in scene
// files.
bool isReserved(std::string_view word)
{
    static const std::unordered_set<std::string_view> words { "DEF", "USE", "NULL", "IS", "ROUTE",
        "TO", "PROTO", "EXTERNPROTO", "PROFILE", "COMPONENT", "META", "IMPORT", "EXPORT", "AS",
        "field", "eventIn", "eventOut", "exposedField", "SFBool", "SFColor", "SFFloat", "SFImage",
        "SFInt32", "SFNode", "SFRotation", "SFString", "SFTime", "SFVec2f", "SFVec3f", "MFColor",
        "MFFloat", "MFInt32", "MFNode", "MFRotation", "MFString", "MFTime", "MFVec2f", "MFVec3f" };
    return words.count(word) > 0;
}

SceneToken::Kind punctuation(char character)
{
    switch (character) {
    case '{':
        return SceneToken::OpenBrace;
    case '}':
        return SceneToken::CloseBrace;
    case '[':
        return SceneToken::OpenBracket;
    case ']':
        return SceneToken::CloseBracket;
    default:
        return SceneToken::Invalid;
    }
}

} // namespace

SceneScanner::SceneScanner(std::string_view text)
    : _text(text)
{
    advance();
}

bool SceneScanner::isIdentifier(std::string_view text)
{
    return !text.empty() && is(BeginsIdentifier, text.front())
        && std::all_of(text.begin(), text.end(), [](char c) { return is(ContinuesIdentifier, c); })
        && !isReserved(text);
}

void SceneScanner::advance()
{
    skipSeparators();
    _token.line = _line;
    if (_next == _text.size()) {
        take(SceneToken::End, 0);
        return;
    }
    const char first = _text[_next];
    if (is(BeginsIdentifier, first)) {
        takeIdentifier();
    } else if (is(Digit, first) || contains("+-.", first)) {
        takeNumber();
    } else if (first == '"') {
        takeString();
    } else {
        take(punctuation(first), 1);
    }
}

void SceneScanner::skipSeparators()
{
    const char *character = _text.data() + _next;
    const char *const end = _text.data() + _text.size();
    for (bool isComment = false; character != end; ++character) {
        isComment = (isComment || *character == '#') && *character != '\n';
        if (!isComment && !is(Separator, *character)) {
            break;
        }
        _line += *character == '\n';
    }
    _next = static_cast<std::size_t>(character - _text.data());
}

bool SceneScanner::at(std::size_t position, char character) const
{
    return position < _text.size() && _text[position] == character;
}

void SceneScanner::take(SceneToken::Kind kind, std::size_t length)
{
    _token.kind = kind;
    _token.text = _text.substr(_next, length);
    _next += length;
}

void SceneScanner::takeIdentifier()
{
    std::size_t end = _next;
    while (end < _text.size() && is(ContinuesIdentifier, _text[end])) {
        ++end;
    }
    take(SceneToken::Identifier, end - _next);
    if (isReserved(_token.text)) {
        _token.kind = SceneToken::Reserved;
    }
}

// A backslash protects a quote and a backslash and is an ordinary character otherwise.
void SceneScanner::takeString()
{
    std::size_t end = _next + 1;
    while (end < _text.size() && _text[end] != '"') {
        const bool isEscape = _text[end] == '\\' && (at(end + 1, '"') || at(end + 1, '\\'));
        end += isEscape ? 2 : 1;
    }
    if (end >= _text.size()) {
        take(SceneToken::Invalid, _text.size() - _next);
    } else {
        take(SceneToken::String, end + 1 - _next);
        _token.text = _token.text.substr(1, _token.text.size() - 2);
    }
    _line += static_cast<UInt32>(std::count(_token.text.begin(), _token.text.end(), '\n'));
}

void SceneScanner::takeNumber()
{
    const std::size_t sign = contains("+-", _text[_next]) ? 1 : 0;
    const std::size_t digits = countDigits(_next + sign);
    if (const std::size_t length = hexLength(sign)) {
        take(SceneToken::Integer, length);
    } else if (const std::size_t length = realLength(sign); length > sign + digits) {
        take(SceneToken::Real, length);
    } else if (digits > 0) {
        take(SceneToken::Integer, sign + digits);
    } else {
        take(SceneToken::Invalid, 1);
    }
}

std::size_t SceneScanner::countDigits(std::size_t from) const
{
    std::size_t end = from;
    while (end < _text.size() && is(Digit, _text[end])) {
        ++end;
    }
    return end - from;
}

std::size_t SceneScanner::hexLength(std::size_t sign) const
{
    const std::size_t prefix = _next + sign;
    if (!at(prefix, '0') || !(at(prefix + 1, 'x') || at(prefix + 1, 'X'))) {
        return 0;
    }
    std::size_t end = prefix + 2;
    while (end < _text.size() && is(HexDigit, _text[end])) {
        ++end;
    }
    return end > prefix + 2 ? end - _next : 0;
}

// Returns the length of a real number: digits, optionally a point and digits, optionally an
// exponent. Returns 0 if there is no digit before the exponent.
std::size_t SceneScanner::realLength(std::size_t sign) const
{
    std::size_t end = _next + sign;
    std::size_t digits = countDigits(end);
    end += digits;
    if (at(end, '.')) {
        const std::size_t decimals = countDigits(end + 1);
        end += 1 + decimals;
        digits += decimals;
    }
    if (digits == 0) {
        return 0;
    }
    if (at(end, 'e') || at(end, 'E')) {
        const std::size_t exponent = end + (at(end + 1, '+') || at(end + 1, '-') ? 2 : 1);
        const std::size_t exponentDigits = countDigits(exponent);
        end = exponentDigits > 0 ? exponent + exponentDigits : end;
    }
    return end - _next;
}

OSG_END_NAMESPACE
