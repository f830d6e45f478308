#include "IO/OSGSceneCursor.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

namespace {

constexpr std::size_t shownTokenLength = 60;

std::string_view firstLine(std::string_view text)
{
    return text.substr(0, text.find_first_of(std::string_view("\r\n\0", 3)));
}

}

bool SceneCursor::atWord(std::string_view word) const
{
    return at(SceneToken::Reserved) && _scanner.token().text == word;
}

bool SceneCursor::atNode() const
{
    return atWord("DEF") || atWord("USE") || typeAtToken();
}

const FieldContainerType *SceneCursor::typeAtToken() const
{
    return at(SceneToken::Identifier) ? FieldContainerFactory::the()->findType(word().c_str())
                                      : nullptr;
}

bool SceneCursor::fail()
{
    const SceneToken &token = _scanner.token();
    if (_reportedPosition != _scanner.position()) {
        _reportedPosition = _scanner.position();
        SWARNING << "-----> parse error in Line " << token.line << ", read '"
                 << firstLine(token.text).substr(0, shownTokenLength) << "'" << endLog;
    }
    return false;
}

void SceneCursor::skipGroup()
{
    UInt32 depth = 0;
    do {
        if (at(SceneToken::OpenBrace) || at(SceneToken::OpenBracket)) {
            ++depth;
        } else if (depth > 0 && (at(SceneToken::CloseBrace) || at(SceneToken::CloseBracket))) {
            --depth;
        }
        _scanner.advance();
    } while (depth > 0 && !at(SceneToken::End));
}

void SceneCursor::skipNode()
{
    if (at(SceneToken::Identifier)) {
        _scanner.advance();
    }
    if (at(SceneToken::OpenBrace)) {
        skipGroup();
    }
}

OSG_END_NAMESPACE
