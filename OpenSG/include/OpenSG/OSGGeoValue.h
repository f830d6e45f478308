#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

#include <type_traits>

OSG_BEGIN_NAMESPACE

/// Converts between the stored values of a geometry property and its generic values. Missing
/// components are 0, but the fourth component of a point is 1. Byte colours have 255 for 1. Integer
/// normals have the largest integer for 1.
namespace GeoValue {

template <class To, class From> To convert(const From &from);

namespace Detail {

template <class T> struct IsColor : std::false_type
{
};
template <class T> struct IsColor<Color3<T>> : std::true_type
{
};
template <class T> struct IsColor<Color4<T>> : std::true_type
{
};

template <class T> constexpr bool isVector = false;
template <class T, class S> constexpr bool isVector<VectorInterface<T, S>> = true;

/// Returns the stored value of a component that is 1.
template <class T, bool scaled> constexpr Real32 one()
{
    if constexpr (scaled && std::is_integral_v<T>) {
        return static_cast<Real32>(std::numeric_limits<T>::max());
    } else {
        return 1.f;
    }
}

template <class T> constexpr UInt32 sizeOf()
{
    if constexpr (IsColor<T>::value) {
        return sizeof(T) / sizeof(typename T::ValueType);
    } else {
        return T::Size;
    }
}

template <class To, class From> To convertComponents(const From &from)
{
    typedef typename To::ValueType ToValue;
    typedef typename From::ValueType FromValue;
    constexpr bool scaled = IsColor<To>::value || isVector<To>;
    constexpr Real32 factor = one<ToValue, scaled>() / one<FromValue, scaled>();

    To result;
    if constexpr (sizeOf<To>() == 4 && !isVector<To>) {
        result[3] = static_cast<ToValue>(one<ToValue, scaled>());
    }
    for (UInt32 i = 0; i < std::min(sizeOf<To>(), sizeOf<From>()); ++i) {
        result[i] = static_cast<ToValue>(from[i] * factor);
    }
    return result;
}

} // namespace Detail

template <class To, class From> To convert(const From &from)
{
    if constexpr (std::is_same_v<To, From>) {
        return from;
    } else if constexpr (std::is_arithmetic_v<To> && std::is_arithmetic_v<From>) {
        return static_cast<To>(from);
    } else if constexpr (std::is_arithmetic_v<To>) {
        return static_cast<To>(from[0]);
    } else if constexpr (std::is_arithmetic_v<From>) {
        To result;
        result[0] = static_cast<typename To::ValueType>(from);
        return result;
    } else {
        return Detail::convertComponents<To>(from);
    }
}

} // namespace GeoValue

OSG_END_NAMESPACE
