#pragma once

#include <OpenSG/OSGFieldDataType.h>

OSG_BEGIN_NAMESPACE

class FieldContainerPtr;

/// What SField and MField have in common: one value to and from text, one value as a handle.
namespace FieldText {

void reportNoWriter();
void reportNoReader();

/// Assigns the text to `out`; without a text form logs a line and returns false.
template <class Traits, class T> bool write(const T &value, std::string &out)
{
    if constexpr ((Traits::StringConvertable & FieldTraits::ToStringConvertable) != 0) {
        Traits::putToString(value, out);
        return true;
    } else {
        reportNoWriter();
        return false;
    }
}

template <class Traits, class T> void read(T &value, const Char8 *str)
{
    if constexpr ((Traits::StringConvertable & FieldTraits::FromStringConvertable) != 0) {
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
