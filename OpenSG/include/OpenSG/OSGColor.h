#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <type_traits>

OSG_BEGIN_NAMESPACE

/// Conversions between colour spaces. The hue is 0 to 360, the other components are 0 to 1.
namespace ColorSpace {
void rgbToHsv(const Real32 rgb[3], Real32 &hue, Real32 &saturation, Real32 &value);
void hsvToRgb(Real32 hue, Real32 saturation, Real32 value, Real32 rgb[3]);
}

/// Base of colours with and without alpha. All components of a default colour are 0, including
/// alpha. Real components are 0 to 1 but not clamped. Byte components are 0 to 255. Comparisons
/// have the absolute tolerance Eps.
template <class Color, class T, UInt32 size> class ColorBase
{
public:
    typedef T ValueType;
    static constexpr UInt32 Size = size;

    T red() const { return _values[0]; }
    T green() const { return _values[1]; }
    T blue() const { return _values[2]; }

    void setValuesRGB(T red, T green, T blue)
    {
        _values[0] = red;
        _values[1] = green;
        _values[2] = blue;
    }
    void getValuesRGB(T &red, T &green, T &blue) const
    {
        red = _values[0];
        green = _values[1];
        blue = _values[2];
    }
    T *getValuesRGB() { return _values; }
    const T *getValuesRGB() const { return _values; }
    T &operator[](UInt32 index) { return _values[index]; }
    const T &operator[](UInt32 index) const { return _values[index]; }

    void setValuesHSV(Real32 hue, Real32 saturation, Real32 value);
    void convertToHSV(Real32 &hue, Real32 &saturation, Real32 &value) const;

    /// Reads numbers that are separated by white space or commas. Missing and unreadable numbers
    /// are 0. Bytes are read as reals and wrap.
    void setValue(const Char8 *text);

    bool equals(const ColorBase &other, T tolerance) const;
    bool operator==(const Color &other) const { return equals(other, static_cast<T>(Eps)); }
    bool operator!=(const Color &other) const { return !(*this == other); }

    Color operator+(const Color &other) const { return combined(other, std::plus<>()); }
    Color operator-(const Color &other) const { return combined(other, std::minus<>()); }
    Color operator*(const Color &other) const { return combined(other, std::multiplies<>()); }
    Color operator/(const Color &other) const { return combined(other, std::divides<>()); }
    Color operator+(T value) const { return combined(uniform(value), std::plus<>()); }
    Color operator-(T value) const { return combined(uniform(value), std::minus<>()); }
    Color operator*(T value) const { return combined(uniform(value), std::multiplies<>()); }
    Color operator/(T value) const { return combined(uniform(value), std::divides<>()); }
    Color &operator+=(const Color &other) { return become(*this + other); }
    Color &operator-=(const Color &other) { return become(*this - other); }
    Color &operator*=(const Color &other) { return become(*this * other); }
    Color &operator/=(const Color &other) { return become(*this / other); }
    Color &operator+=(T value) { return become(*this + value); }
    Color &operator-=(T value) { return become(*this - value); }
    Color &operator*=(T value) { return become(*this * value); }
    Color &operator/=(T value) { return become(*this / value); }

protected:
    ColorBase() = default;

    /// The first component is the lowest byte.
    UInt32 packed() const;
    void unpack(UInt32 bytes);

    T _values[size] = {};

private:
    static constexpr Real32 scale = std::is_floating_point_v<T> ? 1.f : 255.f;

    static T fromReal(Real32 value);
    static T fromShare(Real32 share);
    static Color uniform(T value);
    Color &become(const Color &result) { return static_cast<Color &>(*this) = result; }
    template <class Operation> Color combined(const Color &other, Operation operation) const;
};

template <class T> class Color3 : public ColorBase<Color3<T>, T, 3>
{
public:
    Color3() = default;
    Color3(T red, T green, T blue) { this->setValuesRGB(red, green, blue); }
    explicit Color3(const T *values) { std::copy_n(values, 3, this->_values); }

    /// Packed as 0xBBGGRR.
    UInt32 getRGB() const { return this->packed(); }
    void setRGB(UInt32 rgb) { this->unpack(rgb); }
};

template <class T> class Color4 : public ColorBase<Color4<T>, T, 4>
{
public:
    Color4() = default;
    Color4(T red, T green, T blue, T alpha) { setValuesRGBA(red, green, blue, alpha); }
    explicit Color4(const T *values) { std::copy_n(values, 4, this->_values); }

    T alpha() const { return this->_values[3]; }
    void setValuesRGBA(T red, T green, T blue, T alpha)
    {
        this->setValuesRGB(red, green, blue);
        this->_values[3] = alpha;
    }
    void getValuesRGBA(T &red, T &green, T &blue, T &alpha) const
    {
        this->getValuesRGB(red, green, blue);
        alpha = this->_values[3];
    }
    T *getValuesRGBA() { return this->_values; }
    const T *getValuesRGBA() const { return this->_values; }

    /// Packed as 0xAABBGGRR.
    UInt32 getRGBA() const { return this->packed(); }
    void setRGBA(UInt32 rgba) { this->unpack(rgba); }
};

template <class Color, class T, UInt32 size>
void ColorBase<Color, T, size>::setValuesHSV(Real32 hue, Real32 saturation, Real32 value)
{
    Real32 rgb[3];
    ColorSpace::hsvToRgb(hue, saturation, value, rgb);
    for (UInt32 i = 0; i < 3; ++i) {
        _values[i] = fromShare(rgb[i]);
    }
}

template <class Color, class T, UInt32 size>
void ColorBase<Color, T, size>::convertToHSV(Real32 &hue, Real32 &saturation, Real32 &value) const
{
    const Real32 rgb[] = { red() / scale, green() / scale, blue() / scale };
    ColorSpace::rgbToHsv(rgb, hue, saturation, value);
}

template <class Color, class T, UInt32 size>
void ColorBase<Color, T, size>::setValue(const Char8 *text)
{
    Real32 numbers[size];
    NumberText::readList(text, numbers, size);
    std::transform(numbers, numbers + size, _values, fromReal);
}

template <class Color, class T, UInt32 size>
bool ColorBase<Color, T, size>::equals(const ColorBase &other, T tolerance) const
{
    return std::equal(_values, _values + size, other._values,
        [tolerance](T a, T b) { return (a < b ? b - a : a - b) <= tolerance; });
}

template <class Color, class T, UInt32 size> UInt32 ColorBase<Color, T, size>::packed() const
{
    UInt32 bytes = 0;
    for (UInt32 i = 0; i < size; ++i) {
        const Real32 share = std::clamp(_values[i] / scale, 0.f, 1.f);
        bytes |= static_cast<UInt32>(std::lround(share * 255.f)) << (8 * i);
    }
    return bytes;
}

template <class Color, class T, UInt32 size> void ColorBase<Color, T, size>::unpack(UInt32 bytes)
{
    for (UInt32 i = 0; i < size; ++i) {
        _values[i] = fromShare(((bytes >> (8 * i)) & 0xff) / 255.f);
    }
}

template <class Color, class T, UInt32 size> T ColorBase<Color, T, size>::fromReal(Real32 value)
{
    if constexpr (std::is_floating_point_v<T>) {
        return value;
    } else {
        constexpr Real32 convertible = 9e18f;
        return std::fabs(value) < convertible ? static_cast<T>(static_cast<Int64>(value)) : T(0);
    }
}

template <class Color, class T, UInt32 size> T ColorBase<Color, T, size>::fromShare(Real32 share)
{
    if constexpr (std::is_floating_point_v<T>) {
        return share;
    } else {
        return static_cast<T>(std::lround(share * scale));
    }
}

template <class Color, class T, UInt32 size> Color ColorBase<Color, T, size>::uniform(T value)
{
    Color result;
    std::fill_n(result._values, size, value);
    return result;
}

template <class Color, class T, UInt32 size>
template <class Operation>
Color ColorBase<Color, T, size>::combined(const Color &other, Operation operation) const
{
    Color result;
    for (UInt32 i = 0; i < size; ++i) {
        result._values[i] = static_cast<T>(operation(_values[i], other._values[i]));
    }
    return result;
}

typedef Color3<Real32> Color3f;
typedef Color4<Real32> Color4f;
typedef Color3<UInt8> Color3ub;
typedef Color4<UInt8> Color4ub;

OSG_END_NAMESPACE
