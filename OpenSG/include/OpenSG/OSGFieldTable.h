#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <initializer_list>

OSG_BEGIN_NAMESPACE

/// Functions for the field tables of container classes. A table is an array of descriptions with a
/// row for each field:
///     FieldDescription *LineChunk::_desc[] = { describe<&LineChunk::_sfWidth>("width", 4), ... };

template <auto Member> struct MemberPointer;
template <class Class, class FieldT, FieldT Class::*Member> struct MemberPointer<Member>
{
    typedef FieldT Type;

    static Field *access(FieldContainer &container)
    {
        return &(static_cast<Class &>(container).*Member);
    }
};

/// Creates the description of a field that is a member of its class. `Described` is the type in the
/// description, if that differs from the type of the field.
template <auto Member, class Described = typename MemberPointer<Member>::Type>
FieldDescription *describe(
    const Char8 *name, UInt32 id, bool internal = false, const Char8 *remark = nullptr)
{
    const FieldAccessFunction access = MemberPointer<Member>::access;
    return new FieldDescription(Described::getClassType(), name, id,
        TypeTraits<BitVector>::One << id, internal, access, remark);
}

/// Makes a prototype creator for FieldContainerType from a createEmpty function.
template <auto CreateEmpty> FieldContainerPtr prototypeOf()
{
    return CreateEmpty();
}

/// Makes a multi-field with these values.
template <class MFieldT> MFieldT listOf(std::initializer_list<typename MFieldT::StoredType> values)
{
    MFieldT result;
    result.getValues().assign(values.begin(), values.end());
    return result;
}

OSG_END_NAMESPACE
