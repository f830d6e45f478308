#pragma once

#include "Fields/OSGFieldSyntax.h"

#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGField.h>
#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// Writes the values of a field in the form of ASCII scene files.
///
/// The format cannot store some values. Substitutes are written and reported in the log:
/// - 0 for NaN
/// - the y of a sphere's center for its z
/// - one blank for blanks, tabs and line ends in a string, unless they are kept
/// - a backslash before a quote in a string, because some programs do not read it
///
/// Lines never end inside a string.
class AsciiValues
{
public:
    /// Reports name the field by the type of its owner and its own name.
    AsciiValues(bool keepsWhiteSpace, const Char8 *owner, const Char8 *fieldName);

    /// Lines begin with `indent` blanks and have at most `width` further characters.
    std::string write(const Field &field, const FieldSyntax &syntax, UInt32 indent, UInt32 width);

private:
    std::string writeStrings(const Field &field, StringConversionStateBase &state);
    std::string quoted(const Field &field, UInt32 index);
    void reportDepth(const DynamicVolume &volume) const;
    std::string withReadableNumbers(std::string text);
    void report(const Char8 *problem) const;

    bool _keepsWhiteSpace;
    const Char8 *_owner;
    const Char8 *_fieldName;
};

OSG_END_NAMESPACE
