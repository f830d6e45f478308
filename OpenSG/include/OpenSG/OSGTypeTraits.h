#pragma once

#include <OpenSG/OSGNumberText.h>

#include <limits>

OSG_BEGIN_NAMESPACE

/// Neutral elements, limits and text of the arithmetic types.
template <class T> struct ArithmeticTypeTraits
{
    enum { IsPOD = true };

    static T getZeroElement() { return T(0); }
    static T getOneElement() { return T(1); }
    static T getMin() { return std::numeric_limits<T>::lowest(); }
    static T getMax() { return std::numeric_limits<T>::max(); }

    static T getFromString(const char *text) { return NumberText::read<T>(text); }
    static std::string putToString(const T value)
    {
        std::string text;
        NumberText::write(text, value);
        return text;
    }
};

template <class T> struct TypeTraits : ArithmeticTypeTraits<T>
{
};

/// Bit masks have 64 bits. Write a mask as `TypeTraits<BitVector>::One << id`.
template <> struct TypeTraits<std::uint64_t> : ArithmeticTypeTraits<std::uint64_t>
{
    static constexpr std::uint64_t Zero = 0;
    static constexpr std::uint64_t One = 1;
};

OSG_END_NAMESPACE
