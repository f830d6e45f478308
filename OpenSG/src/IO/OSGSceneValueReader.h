#pragma once

#include "IO/OSGSceneScanner.h"

#include <string>

OSG_BEGIN_NAMESPACE

struct FieldSyntax;

/// Takes the tokens of one value from a scanner and puts them together as the text that fields
/// read.
class SceneValueReader
{
public:
    explicit SceneValueReader(SceneScanner &scanner)
        : _scanner(scanner)
    {
    }

    /// False if the tokens are no such value; the scanner then stands on the first wrong one.
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
