#pragma once

#include <OpenSG/OSGFieldDataType.h>

OSG_BEGIN_NAMESPACE

class FieldContainerPtr;

/// What SField and MField have in common: one value to and from text, one value as a handle.
namespace FieldText {

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

template <class Traits, class T> void read(T &value, const Char8 *str)
{
    if constexpr (isReadable<Traits>) {
        Traits::getFromString(value, str);
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

} // namespace FieldText

OSG_END_NAMESPACE
