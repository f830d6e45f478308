#include "IO/OSGSceneValueReader.h"

#include "Fields/OSGFieldSyntax.h"

#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <strings.h>

OSG_BEGIN_NAMESPACE

bool SceneValueReader::read(const FieldSyntax &syntax)
{
    switch (syntax.kind) {
    case FieldSyntax::Bool:
        return readBool();
    case FieldSyntax::String:
    case FieldSyntax::Text:
        return readString();
    case FieldSyntax::Integers:
        return readNumbers(syntax.count, false);
    case FieldSyntax::Reals:
        return readNumbers(syntax.count, true);
    case FieldSyntax::Volume:
        return readVolume();
    default:
        return false;
    }
}

bool SceneValueReader::readBool()
{
    _text = _scanner.token().text;
    const bool isBool
        = strcasecmp(_text.c_str(), "true") == 0 || strcasecmp(_text.c_str(), "false") == 0;
    if (!isBool || !at(SceneToken::Identifier)) {
        return false;
    }
    _scanner.advance();
    return true;
}

bool SceneValueReader::readString()
{
    if (!at(SceneToken::String) && !at(SceneToken::Identifier)) {
        return false;
    }
    const std::string_view text = _scanner.token().text;
    _text.clear();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        i += text[i] == '\\' && (next == '"' || next == '\\');
        _text += text[i];
    }
    leaveOutNulls();
    _scanner.advance();
    return true;
}

// Fields read a text only up to its first null character.
void SceneValueReader::leaveOutNulls()
{
    const auto end = std::remove(_text.begin(), _text.end(), '\0');
    if (end != _text.end()) {
        SWARNING << "A null character in the text in Line " << _scanner.token().line
                 << " is left out" << endLog;
    }
    _text.erase(end, _text.end());
}

bool SceneValueReader::readNumbers(UInt32 count, bool areReals)
{
    _text.clear();
    for (UInt32 i = 0; i < count; ++i) {
        if (!isNumber(areReals)) {
            return false;
        }
        _text.append(i > 0 ? " " : "").append(_scanner.token().text);
        _scanner.advance();
    }
    return true;
}

// Six numbers make a box, four a sphere.
bool SceneValueReader::readVolume()
{
    constexpr UInt32 sphereCount = 4;
    constexpr UInt32 boxCount = 6;
    if (!readNumbers(sphereCount, true)) {
        return false;
    }
    UInt32 count = sphereCount;
    for (; isNumber(true) && count < boxCount; ++count) {
        _text.append(" ").append(_scanner.token().text);
        _scanner.advance();
    }
    return count == sphereCount || count == boxCount;
}

bool SceneValueReader::isNumber(bool isReal) const
{
    return at(SceneToken::Integer) || (isReal && at(SceneToken::Real));
}

OSG_END_NAMESPACE
