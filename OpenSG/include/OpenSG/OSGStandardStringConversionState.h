#pragma once

#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// Writes values as words with single blanks between them. The values of a multi-field are
/// separated by ", ". Lines begin with `indent` blanks and are at most `width` characters long, if
/// no single word is longer.
class StandardStringConversionState : public StringConversionStateBase
{
public:
    explicit StandardStringConversionState(UInt32 indent = 0, UInt32 width = 80);

    UInt32 getIndent() const { return _indent; }
    void setIndent(UInt32 indent) { _indent = indent; }
    /// The width in characters, without the indent.
    UInt32 getWidth() const { return _width; }
    void setWidth(UInt32 width) { _width = width; }

    std::string &beginField(const Field *pF, std::string &outStr) override;
    std::string &addValueStr(std::string &value, std::string &outStr) override;
    std::string &endField(const Field *pF, std::string &outStr) override;

private:
    void addWord(const std::string &word, std::string &outStr);

    UInt32 _indent;
    UInt32 _width;
    UInt32 _lineLength = 0;
    bool _isFirstWord = true;
    bool _isMultiField = false;
};

OSG_END_NAMESPACE
