#pragma once

#include "IO/OSGSceneScanner.h"

#include <string>

OSG_BEGIN_NAMESPACE

class FieldContainerType;

/// Goes through the tokens of a scene file: tells what stands there, complains about what should
/// not, and gets past it.
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
    /// One of the reserved words.
    bool atWord(std::string_view word) const;
    /// The beginning of a container.
    bool atNode() const;
    /// NULL if no type has the name that stands there.
    const FieldContainerType *typeAtToken() const;

    /// Reports the token as an error; always false. There is one line for each token, however many
    /// levels fail at it.
    bool fail();
    /// Skips a token, or all up to the bracket that closes the one it is.
    void skipGroup();
    /// Skips what should have been a container: perhaps its type, perhaps its body.
    void skipNode();

private:
    SceneScanner _scanner;
    std::size_t _reportedPosition = 0;
};

OSG_END_NAMESPACE
