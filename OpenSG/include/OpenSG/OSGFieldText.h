#pragma once

#include <OpenSG/OSGFieldDataType.h>

OSG_BEGIN_NAMESPACE

class Field;
class FieldContainerPtr;
class StringConversionStateBase;

/// Functions for the text of a value and for handles in fields, for SField and MField.
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

/// Assigns the text to `out`. Without a text form, writes a line to the log and leaves `out` alone.
template <class Traits, class T> void write(const T &value, std::string &out)
{
    if constexpr (isWritable<Traits>) {
        Traits::putToString(value, out);
    } else {
        reportNoWriter();
    }
}

/// NULL counts as an empty text. Without a text form, writes a line to the log.
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

// A template, because FieldContainerPtr is not defined here.
template <class HandleT> void assign(HandleT &handle, const HandleT &other)
{
    handle = other;
}

/// If `value` is a handle, assigns the container and returns true. Otherwise returns false. The
/// caller guarantees that the container has the right class, which may be incomplete here.
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
