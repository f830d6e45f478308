#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string_view>

OSG_BEGIN_NAMESPACE

/// One word of an ASCII scene file.
struct SceneToken
{
    enum Kind {
        End,
        Identifier,
        Reserved,
        Integer,
        Real,
        String,
        OpenBrace,
        CloseBrace,
        OpenBracket,
        CloseBracket,
        Invalid
    };

    Kind kind = End;
    /// As it stands in the file; a string without its quotes, but with its escapes.
    std::string_view text;
    /// Counted from 1; of a string, the line where it begins.
    UInt32 line = 1;
};

/// Cuts the text of an ASCII scene file into tokens. White space and commas separate them, `#`
/// begins a comment that ends with the line. The text must outlive the scanner.
class SceneScanner
{
public:
    /// Stands on the first token from the start.
    explicit SceneScanner(std::string_view text);

    const SceneToken &token() const { return _token; }
    /// At the end of the text it stays there.
    void advance();
    /// How much of the text has been scanned, the token included.
    std::size_t position() const { return _next; }

    /// Whether the whole text is one identifier, and not a reserved word.
    static bool isIdentifier(std::string_view text);

private:
    void skipSeparators();
    bool at(std::size_t position, char character) const;
    void take(SceneToken::Kind kind, std::size_t length);
    void takeString();
    void takeNumber();
    void takeIdentifier();
    std::size_t countDigits(std::size_t from) const;
    std::size_t realLength(std::size_t sign) const;
    std::size_t hexLength(std::size_t sign) const;

    std::string_view _text;
    std::size_t _next = 0;
    UInt32 _line = 1;
    SceneToken _token;
};

OSG_END_NAMESPACE
