#pragma once

#include "Fields/OSGFieldSyntax.h"

#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGField.h>
#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// The values of a field as they stand in an ASCII scene file.
///
/// Some values have no form of their own in the format. What is written instead is reported in the
/// log: of a number that is none, 0; of the z of a sphere, its y; of blanks, tabs and line ends in
/// a string, one blank, unless they are kept. A quote in a string is protected by a backslash,
/// which is reported, too, since not every program writes it so. Lines never end inside a string.
class AsciiValues
{
public:
    /// \param owner what reports call the field, the owner's type
    AsciiValues(bool keepsWhiteSpace, const Char8 *owner, const Char8 *fieldName);

    /// In lines that begin with `indent` blanks and are at most `width` characters long besides.
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
