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
    /// The characters in the file. A string is without its quotes but with its escapes.
    std::string_view text;
    /// The line of the first character, counted from 1.
    UInt32 line = 1;
};

/// Splits the text of an ASCII scene file into tokens. White space and commas separate tokens. A
/// `#` begins a comment that ends with the line. The text must outlive the scanner.
class SceneScanner
{
public:
    /// The first token is the current one.
    explicit SceneScanner(std::string_view text);

    const SceneToken &token() const { return _token; }
    /// At the end of the text it does nothing.
    void advance();
    /// The count of characters that have been scanned, including the current token.
    std::size_t position() const { return _next; }

    /// True if the whole text is one identifier and not a reserved word.
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
