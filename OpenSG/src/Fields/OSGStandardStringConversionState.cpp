#include <OpenSG/OSGStandardStringConversionState.h>

#include <OpenSG/OSGField.h>

OSG_BEGIN_NAMESPACE

namespace {

constexpr const Char8 *whiteSpace = " \t\n\v\f\r";
constexpr const Char8 *separator = ", ";

} // namespace

StandardStringConversionState::StandardStringConversionState(UInt32 indent, UInt32 width)
    : _indent(indent)
    , _width(width)
{
}

std::string &StandardStringConversionState::beginField(const Field *pF, std::string &outStr)
{
    _isMultiField = pF->getCardinality() == FieldType::MULTI_FIELD;
    _lineLength = 0;
    return outStr.append(_indent, ' ');
}

std::string &StandardStringConversionState::addValueStr(std::string &value, std::string &outStr)
{
    _isFirstWord = true;
    NumberText::Tokens words(value.c_str(), whiteSpace);
    while (words.next()) {
        addWord(words.token(), outStr);
    }
    if (_isMultiField) {
        outStr += separator;
        _lineLength += 2;
    }
    return outStr;
}

// Deliberate: an empty field has no last separator to remove. Its first two characters are removed
// instead, which are normally two blanks of the indent. Existing files have this form.
std::string &StandardStringConversionState::endField(const Field *pF, std::string &outStr)
{
    if (_isMultiField) {
        const bool isEmpty = pF->isEmpty();
        outStr.erase(isEmpty || outStr.size() < 2 ? 0 : outStr.size() - 2, 2);
    }
    return outStr;
}

void StandardStringConversionState::addWord(const std::string &word, std::string &outStr)
{
    const auto length = static_cast<UInt32>(word.size() + 1);
    if (_lineLength > 0 && _lineLength + length > _width) {
        outStr.append(1, '\n').append(_indent, ' ');
        _lineLength = 0;
    } else if (!_isFirstWord) {
        outStr += ' ';
    }
    outStr += word;
    _lineLength += length;
    _isFirstWord = false;
}

OSG_END_NAMESPACE
