#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <initializer_list>

OSG_BEGIN_NAMESPACE

/// What the field tables of container classes are written with. A table is an array of
/// descriptions, one row for each field:
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

/// The description of a field that is a member of its class. `Described` is the type that the
/// description tells, should that differ from the field's own.
template <auto Member, class Described = typename MemberPointer<Member>::Type>
FieldDescription *describe(
    const Char8 *name, UInt32 id, bool internal = false, const Char8 *remark = nullptr)
{
    const FieldAccessFunction access = MemberPointer<Member>::access;
    return new FieldDescription(Described::getClassType(), name, id,
        TypeTraits<BitVector>::One << id, internal, access, remark);
}

/// A createEmpty function as FieldContainerType wants it.
template <auto CreateEmpty> FieldContainerPtr prototypeOf()
{
    return CreateEmpty();
}

/// A multi-field with its first values.
template <class MFieldT> MFieldT listOf(std::initializer_list<typename MFieldT::StoredType> values)
{
    MFieldT result;
    result.getValues().assign(values.begin(), values.end());
    return result;
}

OSG_END_NAMESPACE
