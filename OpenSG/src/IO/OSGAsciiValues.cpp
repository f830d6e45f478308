#include "IO/OSGAsciiValues.h"

#include "IO/OSGAsciiFormat.h"
#include "IO/OSGUnbrokenStringState.h"

#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGStandardStringConversionState.h>

#include <algorithm>
#include <cstring>

OSG_BEGIN_NAMESPACE

namespace {

// Greater than the maximum of all real types, so that it is read as infinite.
constexpr const Char8 *infinite = "1.000000e+9999";
constexpr const Char8 *zero = "0.000000e+00";

bool isWhiteSpace(char c)
{
    return std::strchr(" \t\n\v\f\r", c) && c != '\0';
}

std::string withSingleBlanks(std::string text)
{
    std::replace_if(text.begin(), text.end(), isWhiteSpace, ' ');
    const auto areBlanks = [](char a, char b) { return a == ' ' && b == ' '; };
    text.erase(std::unique(text.begin(), text.end(), areBlanks), text.end());
    return text;
}

// Adds a backslash before each quote, and before each backslash that would start an escape.
std::string withEscapes(const std::string &text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '"';
        const bool escapesNext = text[i] == '\\' && (next == '\\' || next == '"');
        if (text[i] == '"' || escapesNext) {
            result += '\\';
        }
        result += text[i];
    }
    return result;
}

bool replaceAll(std::string &text, const std::string &word, const std::string &replacement)
{
    bool found = false;
    for (std::size_t at = text.find(word); at != std::string::npos;
         at = text.find(word, at + replacement.size())) {
        text.replace(at, word.size(), replacement);
        found = true;
    }
    return found;
}

} // namespace

AsciiValues::AsciiValues(bool keepsWhiteSpace, const Char8 *owner, const Char8 *fieldName)
    : _keepsWhiteSpace(keepsWhiteSpace)
    , _owner(owner)
    , _fieldName(fieldName)
{
}

std::string AsciiValues::write(
    const Field &field, const FieldSyntax &syntax, UInt32 indent, UInt32 width)
{
    const bool isString = syntax.kind == FieldSyntax::String || syntax.kind == FieldSyntax::Text;
    if (isString && !field.isEmpty()) {
        UnbrokenStringState state(indent, width);
        return writeStrings(field, state);
    }
    if (const auto *volume = dynamic_cast<const SFDynamicVolume *>(&field)) {
        reportDepth(volume->getValue());
    }
    StandardStringConversionState state(indent, width);
    std::string text;
    return withReadableNumbers(field.getValueByStr(text, state));
}

std::string AsciiValues::writeStrings(const Field &field, StringConversionStateBase &state)
{
    std::string text;
    state.beginField(&field, text);
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        std::string value = quoted(field, i);
        state.addValueStr(value, text);
    }
    return state.endField(&field, text);
}

std::string AsciiValues::quoted(const Field &field, UInt32 index)
{
    std::string text;
    field.getValueByStr(text, index);
    if (FieldSyntax::of(field.getType()).kind == FieldSyntax::String) {
        text = text.substr(1, text.size() - 2);
    }
    if (const auto nul = std::remove(text.begin(), text.end(), '\0'); nul != text.end()) {
        text.erase(nul, text.end());
        report("a null character in the text is left out");
    }
    if (text.find('"') != std::string::npos) {
        report("a quote in the text is written with a backslash");
    }
    if (const std::string simple = withSingleBlanks(text); !_keepsWhiteSpace && simple != text) {
        text = simple;
        report("white space in the text is written as single blanks");
    }
    return '"' + withEscapes(text) + '"';
}

// The text of a sphere has the y of its center in the place of the z.
void AsciiValues::reportDepth(const DynamicVolume &volume) const
{
    Pnt3f center;
    volume.getCenter(center);
    if (volume.getType() == DynamicVolume::SPHERE_VOLUME && center[1] != center[2]) {
        report("the z of a sphere's centre is written as its y");
    }
}

std::string AsciiValues::withReadableNumbers(std::string text)
{
    if (text.find('n') == std::string::npos) {
        return text;
    }
    replaceAll(text, "inf", infinite);
    const bool hadNegative = replaceAll(text, "-nan", zero);
    if (replaceAll(text, "nan", zero) || hadNegative) {
        report("what is not a number is written as 0");
    }
    return text;
}

void AsciiValues::report(const Char8 *problem) const
{
    AsciiFormat::report(_owner, _fieldName, problem);
}

OSG_END_NAMESPACE
