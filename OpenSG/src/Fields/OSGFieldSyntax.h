#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

class FieldType;

/// The form of a field's values in an ASCII scene file. It depends on the type of the field itself,
/// not on the type in the field's description.
struct FieldSyntax
{
    enum Kind {
        Bool,
        String,
        Integers,
        Reals,
        Volume, // six reals for a box, four for a sphere
        Pointers,
        Attachments,
        Text, // a type unknown to the format, written as a string
        None // a type without text
    };

    Kind kind;
    /// The count of numbers in one value.
    UInt32 count;
    /// True if all readers of the format understand the field. Some readers do not know 64-bit
    /// integers or lists of bool, for example.
    bool isCommon;
    /// True if the values may be in brackets.
    bool isList;

    static FieldSyntax of(const FieldType &type);
};

OSG_END_NAMESPACE
