#pragma once

#include "IO/OSGSceneScanner.h"

#include <string>

OSG_BEGIN_NAMESPACE

struct FieldSyntax;

/// Takes the tokens of one value from a scanner and joins them to a text that a field can read.
class SceneValueReader
{
public:
    explicit SceneValueReader(SceneScanner &scanner)
        : _scanner(scanner)
    {
    }

    /// Returns false if the tokens are no such value. The current token is then the first wrong
    /// one.
    bool read(const FieldSyntax &syntax);
    const std::string &text() const { return _text; }

private:
    bool readBool();
    bool readString();
    void leaveOutNulls();
    bool readNumbers(UInt32 count, bool areReals);
    bool readVolume();
    bool isNumber(bool isReal) const;
    bool at(SceneToken::Kind kind) const { return _scanner.token().kind == kind; }

    SceneScanner &_scanner;
    std::string _text;
};

OSG_END_NAMESPACE
