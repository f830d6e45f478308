#pragma once

#include <OpenSG/OSGFieldDataType.h>

OSG_BEGIN_NAMESPACE

class Field;
class FieldContainerPtr;
class StringConversionStateBase;

/// What SField and MField have in common: one value to and from text, one value as a handle.
namespace FieldText {

/// Append the text of all values of a multi-field and return `out`.
std::string &writeAll(const Field &field, std::string &out);
std::string &writeAll(const Field &field, std::string &out, StringConversionStateBase &state);

void reportNoWriter();
void reportNoReader();

template <class Traits>
constexpr bool isWritable = (Traits::StringConvertable & FieldTraits::ToStringConvertable) != 0;
template <class Traits>
constexpr bool isReadable = (Traits::StringConvertable & FieldTraits::FromStringConvertable) != 0;

/// Assigns the text to `out`; without a text form logs a line and leaves `out` alone.
template <class Traits, class T> void write(const T &value, std::string &out)
{
    if constexpr (isWritable<Traits>) {
        Traits::putToString(value, out);
    } else {
        reportNoWriter();
    }
}

/// NULL is like an empty text; without a text form logs a line.
template <class Traits, class T> void read(T &value, const Char8 *str)
{
    if constexpr (isReadable<Traits>) {
        const Char8 *text = str ? str : "";
        Traits::getFromString(value, text);
    } else {
        reportNoReader();
    }
}

template <class T> const FieldContainerPtr *asHandle(const T &value)
{
    if constexpr (std::is_base_of_v<FieldContainerPtr, T>) {
        return &value;
    } else {
        return nullptr;
    }
}

// A template, since FieldContainerPtr is not defined here.
template <class HandleT> void assign(HandleT &handle, const HandleT &other)
{
    handle = other;
}

/// Lets `value`, if it is a handle, refer to the container, which the caller knows to be of its
/// class. False if it is none. The class itself need not be complete here.
template <class T> bool assignHandle(T &value, const FieldContainerPtr &container)
{
    if constexpr (std::is_base_of_v<FieldContainerPtr, T>) {
        assign<FieldContainerPtr>(value, container);
        return true;
    } else {
        return false;
    }
}

} // namespace FieldText

OSG_END_NAMESPACE
