#pragma once

#include <OpenSG/OSGVecStorage.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <type_traits>

OSG_BEGIN_NAMESPACE

template <class T, class StorageT> class VectorInterface;

/// A point. The difference of two points is a vector. The sum of a point and a vector is a point.
/// All components of a default point are 0. Comparisons have the absolute tolerance Eps.
template <class T, class StorageT> class PointInterface : public StorageT
{
public:
    using StorageT::Size;
    typedef T ValueType;
    typedef StorageT StorageType;
    typedef VectorInterface<T, StorageT> VectorType;
    /// Type of lengths and distances.
    typedef std::conditional_t<std::is_floating_point_v<T>, T, Real32> RealType;

    PointInterface() = default;
    explicit PointInterface(const T *values) { std::copy_n(values, Size, this->_values); }
    explicit PointInterface(T value) { std::fill_n(this->_values, Size, value); }
    template <class... Values, class = std::enable_if_t<sizeof...(Values) == StorageT::Size>>
    PointInterface(Values... values)
    {
        setValues(values...);
    }
    /// Copies the components that both types have. Further components are 0.
    template <class OtherT, class OtherStorageT>
    explicit PointInterface(const PointInterface<OtherT, OtherStorageT> &other)
    {
        std::copy_n(other.getValues(), std::min(Size, OtherStorageT::Size), this->_values);
    }

    template <class... Values> void setValues(Values... values)
    {
        static_assert(sizeof...(Values) == Size);
        const T list[] = { static_cast<T>(values)... };
        std::copy_n(list, Size, this->_values);
    }
    void setValue(const PointInterface &other) { *this = other; }
    /// Reads a number for each component. They are separated by white space or commas. Missing and
    /// unreadable numbers are 0.
    void setValueFromCString(const Char8 *text) { NumberText::readList(text, this->_values, Size); }
    void setNull() { std::fill_n(this->_values, Size, T(0)); }

    T *getValues() { return this->_values; }
    const T *getValues() const { return this->_values; }
    T &operator[](UInt32 index) { return this->_values[index]; }
    const T &operator[](UInt32 index) const { return this->_values[index]; }

    bool isZero() const { return equals(PointInterface(), static_cast<T>(Eps)); }
    bool equals(const PointInterface &other, T tolerance) const;
    bool operator==(const PointInterface &other) const
    {
        return equals(other, static_cast<T>(Eps));
    }
    bool operator!=(const PointInterface &other) const { return !(*this == other); }

    T maxValue() const { return *std::max_element(this->_values, this->_values + Size); }
    RealType dist2(const PointInterface &other) const { return (*this - other).squareLength(); }
    RealType dist(const PointInterface &other) const { return (*this - other).length(); }
    /// The vector from the origin to this point.
    VectorType subZero() const { return VectorType(*this); }

    void negate();
    PointInterface operator-() const { return PointInterface(*this) *= T(-1); }
    VectorType operator-(const PointInterface &other) const
    {
        return VectorType(*this) -= VectorType(other);
    }
    PointInterface operator-(const VectorType &other) const
    {
        return PointInterface(*this) -= other;
    }
    PointInterface operator+(const VectorType &other) const
    {
        return PointInterface(*this) += other;
    }
    PointInterface operator*(T factor) const { return PointInterface(*this) *= factor; }
    PointInterface operator/(T divisor) const { return PointInterface(*this) /= divisor; }
    PointInterface &operator+=(const VectorType &other);
    PointInterface &operator-=(const VectorType &other);
    PointInterface &operator*=(T factor);
    PointInterface &operator/=(T divisor);
};

/// A direction with a length.
template <class T, class StorageT> class VectorInterface : public PointInterface<T, StorageT>
{
public:
    typedef PointInterface<T, StorageT> Inherited;
    typedef PointInterface<T, StorageT> PointType;
    typedef typename Inherited::RealType RealType;

    using Inherited::Inherited;
    VectorInterface() = default;
    template <class OtherT, class OtherStorageT>
    explicit VectorInterface(const PointInterface<OtherT, OtherStorageT> &other)
        : Inherited(other)
    {
    }

    RealType squareLength() const { return static_cast<RealType>(dot(*this)); }
    RealType length() const { return std::sqrt(squareLength()); }
    /// A vector shorter than Eps becomes null.
    void normalize();

    T dot(const PointType &other) const;
    VectorInterface cross(const VectorInterface &other) const;
    /// The angle between the two vectors in radians, 0 to Pi.
    RealType enclosedAngle(const VectorInterface &other) const;
    /// Projects this vector onto `direction` and returns the signed length of the projection.
    RealType projectTo(const VectorInterface &direction);
    /// The point at this vector from the origin.
    const PointType &addToZero() const { return *this; }

    VectorInterface operator-() const { return VectorInterface(*this) *= T(-1); }
    VectorInterface operator-(const VectorInterface &other) const
    {
        return VectorInterface(*this) -= other;
    }
    VectorInterface operator+(const VectorInterface &other) const
    {
        return VectorInterface(*this) += other;
    }
    VectorInterface operator*(T factor) const { return VectorInterface(*this) *= factor; }
    VectorInterface operator/(T divisor) const { return VectorInterface(*this) /= divisor; }
    VectorInterface &operator+=(const VectorInterface &other)
    {
        return become(Inherited::operator+=(other));
    }
    VectorInterface &operator-=(const VectorInterface &other)
    {
        return become(Inherited::operator-=(other));
    }
    VectorInterface &operator*=(T factor) { return become(Inherited::operator*=(factor)); }
    VectorInterface &operator/=(T divisor) { return become(Inherited::operator/=(divisor)); }

private:
    // The argument is *this already; it only lets the operators above be one expression.
    VectorInterface &become(const PointType &) { return *this; }
};

template <class T, class StorageT>
bool PointInterface<T, StorageT>::equals(const PointInterface &other, T tolerance) const
{
    return std::equal(this->_values, this->_values + Size, other._values,
        [tolerance](T a, T b) { return (a < b ? b - a : a - b) <= tolerance; });
}

template <class T, class StorageT> void PointInterface<T, StorageT>::negate()
{
    *this *= static_cast<T>(-1);
}

template <class T, class StorageT>
PointInterface<T, StorageT> &PointInterface<T, StorageT>::operator+=(const VectorType &other)
{
    for (UInt32 i = 0; i < Size; ++i) {
        this->_values[i] = static_cast<T>(this->_values[i] + other[i]);
    }
    return *this;
}

template <class T, class StorageT>
PointInterface<T, StorageT> &PointInterface<T, StorageT>::operator-=(const VectorType &other)
{
    for (UInt32 i = 0; i < Size; ++i) {
        this->_values[i] = static_cast<T>(this->_values[i] - other[i]);
    }
    return *this;
}

template <class T, class StorageT>
PointInterface<T, StorageT> &PointInterface<T, StorageT>::operator*=(T factor)
{
    for (T &value : this->_values) {
        value = static_cast<T>(value * factor);
    }
    return *this;
}

template <class T, class StorageT>
PointInterface<T, StorageT> &PointInterface<T, StorageT>::operator/=(T divisor)
{
    for (T &value : this->_values) {
        value = static_cast<T>(value / divisor);
    }
    return *this;
}

template <class T, class StorageT> void VectorInterface<T, StorageT>::normalize()
{
    const RealType size = length();
    if (size > static_cast<RealType>(Eps)) {
        *this /= static_cast<T>(size);
    } else {
        this->setNull();
    }
}

template <class T, class StorageT> T VectorInterface<T, StorageT>::dot(const PointType &other) const
{
    T sum = 0;
    for (UInt32 i = 0; i < StorageT::Size; ++i) {
        sum = static_cast<T>(sum + this->_values[i] * other[i]);
    }
    return sum;
}

template <class T, class StorageT>
VectorInterface<T, StorageT> VectorInterface<T, StorageT>::cross(const VectorInterface &other) const
{
    static_assert(StorageT::Size >= 3);
    VectorInterface result;
    for (UInt32 i = 0; i < 3; ++i) {
        const UInt32 j = (i + 1) % 3;
        const UInt32 k = (i + 2) % 3;
        result[i] = static_cast<T>(this->_values[j] * other[k] - this->_values[k] * other[j]);
    }
    return result;
}

template <class T, class StorageT>
auto VectorInterface<T, StorageT>::enclosedAngle(const VectorInterface &other) const -> RealType
{
    const RealType lengths = length() * other.length();
    if (lengths < static_cast<RealType>(Eps)) {
        return 0;
    }
    const RealType cosine = static_cast<RealType>(dot(other)) / lengths;
    return std::acos(std::clamp(cosine, RealType(-1), RealType(1)));
}

template <class T, class StorageT>
auto VectorInterface<T, StorageT>::projectTo(const VectorInterface &direction) -> RealType
{
    const RealType size = direction.length();
    const RealType projected = size > 0 ? static_cast<RealType>(dot(direction)) / size : 0;
    *this = direction;
    normalize();
    *this *= static_cast<T>(projected);
    return projected;
}

#define OSG_VECTOR_TYPES(T, suffix)                                                                \
    typedef VectorInterface<T, VecStorage2<T>> Vec2##suffix;                                       \
    typedef VectorInterface<T, VecStorage3<T>> Vec3##suffix;                                       \
    typedef VectorInterface<T, VecStorage4<T>> Vec4##suffix;                                       \
    typedef PointInterface<T, VecStorage2<T>> Pnt2##suffix;                                        \
    typedef PointInterface<T, VecStorage3<T>> Pnt3##suffix;                                        \
    typedef PointInterface<T, VecStorage4<T>> Pnt4##suffix;

OSG_VECTOR_TYPES(UInt8, ub)
OSG_VECTOR_TYPES(Int8, b)
OSG_VECTOR_TYPES(UInt16, us)
OSG_VECTOR_TYPES(Int16, s)
OSG_VECTOR_TYPES(Real32, f)
OSG_VECTOR_TYPES(Real64, d)
OSG_VECTOR_TYPES(Real128, ld)

#undef OSG_VECTOR_TYPES

/// Writes the components separated by blanks.
template <class T, class StorageT>
std::ostream &operator<<(std::ostream &os, const PointInterface<T, StorageT> &values)
{
    std::string text;
    NumberText::writeList(text, values.getValues(), StorageT::Size, " ");
    return os << text;
}

OSG_END_NAMESPACE
