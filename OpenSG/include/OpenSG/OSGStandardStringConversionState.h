#pragma once

#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// Writes values as words joined by single blanks, starts a new line where one would get longer
/// than `width`, begins every line with `indent` blanks and separates the values of a multi-field
/// by ", ".
class StandardStringConversionState : public StringConversionStateBase
{
public:
    explicit StandardStringConversionState(UInt32 indent = 0, UInt32 width = 80);

    UInt32 getIndent() const { return _indent; }
    void setIndent(UInt32 indent) { _indent = indent; }
    /// In characters, the indent not counted.
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
