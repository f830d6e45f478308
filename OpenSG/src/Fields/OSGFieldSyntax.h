#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

class FieldType;

/// How the values of a field stand in an ASCII scene file. The field's own type decides, not the
/// one that it is described with.
struct FieldSyntax
{
    enum Kind {
        Bool,
        String,
        Integers,
        Reals,
        Volume, // six reals of a box, four of a sphere
        Pointers,
        Attachments,
        Text, // a type that the format does not know: its text as a string
        None // a type without text
    };

    Kind kind;
    /// Numbers that make up one value.
    UInt32 count;
    /// Whether all readers of the format understand the field. There are some that know neither
    /// 64-bit integers nor lists of bool, to name two.
    bool isCommon;
    /// Whether values may stand in brackets.
    bool isList;

    static FieldSyntax of(const FieldType &type);
};

OSG_END_NAMESPACE
