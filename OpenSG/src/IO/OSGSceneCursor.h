#pragma once

#include "IO/OSGSceneScanner.h"

#include <string>

OSG_BEGIN_NAMESPACE

class FieldContainerType;

/// Goes through the tokens of a scene file. Tests the current token, reports wrong tokens and skips
/// them.
class SceneCursor
{
public:
    /// The text must outlive the cursor.
    explicit SceneCursor(std::string_view text)
        : _scanner(text)
    {
    }

    SceneScanner &scanner() { return _scanner; }
    std::string word() const { return std::string(_scanner.token().text); }
    std::size_t position() const { return _scanner.position(); }
    void advance() { _scanner.advance(); }

    bool at(SceneToken::Kind kind) const { return _scanner.token().kind == kind; }
    /// True if the current token is this reserved word.
    bool atWord(std::string_view word) const;
    /// True if a container begins at the current token.
    bool atNode() const;
    /// Returns NULL if the current token is not the name of a type.
    const FieldContainerType *typeAtToken() const;

    /// Reports the current token as an error and returns false. Repeated calls for the same token
    /// give only one line in the log.
    bool fail();
    /// Skips the current token. If it is an opening bracket, skips up to the closing bracket.
    void skipGroup();
    /// Skips the type and the body of a container, if they are there.
    void skipNode();

private:
    SceneScanner _scanner;
    std::size_t _reportedPosition = 0;
};

OSG_END_NAMESPACE
