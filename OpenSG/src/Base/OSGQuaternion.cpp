#include <OpenSG/OSGQuaternion.h>

#include <OpenSG/OSGMatrix.h>

#include <array>

OSG_BEGIN_NAMESPACE

namespace {

template <class T> std::array<T, 4> readFour(const Char8 *text)
{
    std::array<T, 4> numbers;
    NumberText::readList(text, numbers.data(), 4, " \t\n");
    return numbers;
}

template <class T> constexpr T degrees = static_cast<T>(180 / 3.14159265358979323846);

// A shorter axis is not divided by: the sine of the half angle is too small.
template <class T> constexpr T shortestAxis = static_cast<T>(1e-6);

template <class T>
VectorInterface<T, VecStorage3<T>> anyNormalTo(const VectorInterface<T, VecStorage3<T>> &vector)
{
    typedef VectorInterface<T, VecStorage3<T>> Vector;
    const Vector helper
        = std::fabs(vector.x()) < std::fabs(vector.y()) ? Vector(1, 0, 0) : Vector(0, 1, 0);
    return vector.cross(helper);
}

} // namespace

template <class T> void QuaternionBase<T>::setValue(const MatrixType &m)
{
    // Dividing by the largest component is numerically stable.
    const T trace = m[0][0] + m[1][1] + m[2][2];
    T squares[4] = { 0, 0, 0, 1 + trace };
    for (UInt32 i = 0; i < 3; ++i) {
        squares[i] = 1 + 2 * m[i][i] - trace;
    }
    const auto largest = static_cast<UInt32>(std::max_element(squares, squares + 4) - squares);
    for (UInt32 i = 0; i < 3; ++i) {
        const UInt32 j = (i + 1) % 3;
        const UInt32 k = (i + 2) % 3;
        const T difference = m[j][k] - m[k][j];
        _values[i] = largest == 3 ? difference : m[i][largest] + m[largest][i];
        if (i == largest) {
            _values[i] = squares[i];
            _values[3] = difference;
        }
    }
    if (largest == 3) {
        _values[3] = squares[3];
    }
    normalize();
}

template <class T> void QuaternionBase<T>::setValue(const VectorType &from, const VectorType &to)
{
    // Cross and dot product form the quaternion of twice the rotation. Adding the identity halves
    // it.
    const T lengths = from.length() * to.length();
    const T w = from.dot(to) + lengths;
    if (w <= shortestAxis<T> * lengths) {
        setValueAsAxisDeg(anyNormalTo(from), 180);
        return;
    }
    const VectorType axis = from.cross(to);
    setValueAsQuat(axis.x(), axis.y(), axis.z(), w);
    normalize();
}

template <class T> void QuaternionBase<T>::setValueAsAxisRad(T x, T y, T z, T angle)
{
    const T length = std::sqrt(x * x + y * y + z * z);
    if (!std::isfinite(length) || length <= shortestAxis<T>) {
        setIdentity();
        return;
    }
    const T factor = std::sin(angle / 2) / length;
    setValueAsQuat(x * factor, y * factor, z * factor, std::cos(angle / 2));
}

template <class T> void QuaternionBase<T>::setValueAsAxisRad(const VectorType &axis, T angle)
{
    setValueAsAxisRad(axis.x(), axis.y(), axis.z(), angle);
}

template <class T> void QuaternionBase<T>::setValueAsAxisRad(const T *values)
{
    setValueAsAxisRad(values[0], values[1], values[2], values[3]);
}

template <class T> void QuaternionBase<T>::setValueAsAxisRad(const Char8 *text)
{
    setValueAsAxisRad(readFour<T>(text).data());
}

template <class T> void QuaternionBase<T>::setValueAsAxisDeg(T x, T y, T z, T angle)
{
    setValueAsAxisRad(x, y, z, angle / degrees<T>);
}

template <class T> void QuaternionBase<T>::setValueAsAxisDeg(const VectorType &axis, T angle)
{
    setValueAsAxisRad(axis, angle / degrees<T>);
}

template <class T> void QuaternionBase<T>::setValueAsAxisDeg(const T *values)
{
    setValueAsAxisDeg(values[0], values[1], values[2], values[3]);
}

template <class T> void QuaternionBase<T>::setValueAsAxisDeg(const Char8 *text)
{
    setValueAsAxisDeg(readFour<T>(text).data());
}

template <class T> void QuaternionBase<T>::setValueAsQuat(T x, T y, T z, T w)
{
    _values[0] = x;
    _values[1] = y;
    _values[2] = z;
    _values[3] = w;
}

template <class T> void QuaternionBase<T>::setValueAsQuat(const T *values)
{
    std::copy_n(values, 4, _values);
}

template <class T> void QuaternionBase<T>::setValueAsQuat(const Char8 *text)
{
    setValueAsQuat(readFour<T>(text).data());
}

template <class T> void QuaternionBase<T>::getValueAsAxisRad(T &x, T &y, T &z, T &angle) const
{
    getValueAsAxisDeg(x, y, z, angle);
    angle /= degrees<T>;
}

template <class T> void QuaternionBase<T>::getValueAsAxisRad(VectorType &axis, T &angle) const
{
    getValueAsAxisRad(axis[0], axis[1], axis[2], angle);
}

template <class T> void QuaternionBase<T>::getValueAsAxisDeg(T &x, T &y, T &z, T &angle) const
{
    const T size
        = std::sqrt(_values[0] * _values[0] + _values[1] * _values[1] + _values[2] * _values[2]);
    if (size <= shortestAxis<T>) {
        x = y = angle = 0;
        z = 1;
        return;
    }
    const T scale = 1 / size;
    x = _values[0] * scale;
    y = _values[1] * scale;
    z = _values[2] * scale;
    angle = 2 * std::acos(std::clamp(_values[3], T(-1), T(1))) * degrees<T>;
}

template <class T> void QuaternionBase<T>::getValueAsAxisDeg(VectorType &axis, T &angle) const
{
    getValueAsAxisDeg(axis[0], axis[1], axis[2], angle);
}

template <class T> void QuaternionBase<T>::getValueAsQuat(T &x, T &y, T &z, T &w) const
{
    x = _values[0];
    y = _values[1];
    z = _values[2];
    w = _values[3];
}

template <class T> void QuaternionBase<T>::getValue(MatrixType &matrix) const
{
    matrix.setIdentity();
    for (UInt32 i = 0; i < 3; ++i) {
        const UInt32 j = (i + 1) % 3;
        const UInt32 k = (i + 2) % 3;
        matrix[i][i] = 1 - 2 * (_values[j] * _values[j] + _values[k] * _values[k]);
        matrix[i][j] = 2 * (_values[i] * _values[j] + _values[k] * _values[3]);
        matrix[j][i] = 2 * (_values[i] * _values[j] - _values[k] * _values[3]);
    }
}

template <class T> T QuaternionBase<T>::length() const
{
    T sum = 0;
    for (const T value : _values) {
        sum += value * value;
    }
    return std::sqrt(sum);
}

template <class T> void QuaternionBase<T>::normalize()
{
    const T size = length();
    if (size <= shortestAxis<T>) {
        setIdentity();
        return;
    }
    for (T &value : _values) {
        value /= size;
    }
}

template <class T> void QuaternionBase<T>::invert()
{
    *this = inverse();
}

template <class T> QuaternionBase<T> QuaternionBase<T>::inverse() const
{
    QuaternionBase result;
    result.setValueAsQuat(-_values[0], -_values[1], -_values[2], _values[3]);
    return result;
}

template <class T> void QuaternionBase<T>::mult(const QuaternionBase &other)
{
    *this = *this * other;
}

template <class T> void QuaternionBase<T>::multLeft(const QuaternionBase &other)
{
    *this = other * *this;
}

template <class T> QuaternionBase<T> QuaternionBase<T>::operator*(const QuaternionBase &other) const
{
    const T *a = _values;
    const T *b = other._values;
    QuaternionBase result;
    result.setValueAsQuat(a[3] * b[0] + a[0] * b[3] + a[1] * b[2] - a[2] * b[1],
        a[3] * b[1] + a[1] * b[3] + a[2] * b[0] - a[0] * b[2],
        a[3] * b[2] + a[2] * b[3] + a[0] * b[1] - a[1] * b[0],
        a[3] * b[3] - a[0] * b[0] - a[1] * b[1] - a[2] * b[2]);
    return result;
}

template <class T> QuaternionBase<T> &QuaternionBase<T>::operator*=(const QuaternionBase &other)
{
    mult(other);
    return *this;
}

template <class T>
void QuaternionBase<T>::slerpThis(const QuaternionBase &from, const QuaternionBase &to, T share)
{
    T cosine = 0;
    for (UInt32 i = 0; i < 4; ++i) {
        cosine += from[i] * to[i];
    }
    const T angle = std::acos(std::min(std::fabs(cosine), T(1)));
    const bool isLine = angle < static_cast<T>(Eps);
    const T fromWeight = isLine ? 1 - share : std::sin((1 - share) * angle) / std::sin(angle);
    const T toWeight = isLine ? share : std::sin(share * angle) / std::sin(angle);
    for (UInt32 i = 0; i < 4; ++i) {
        _values[i] = fromWeight * from[i] + (cosine < 0 ? -toWeight : toWeight) * to[i];
    }
}

template <class T> bool QuaternionBase<T>::equals(const QuaternionBase &other, T tolerance) const
{
    return std::equal(_values, _values + 4, other._values,
        [tolerance](T a, T b) { return std::fabs(a - b) <= tolerance; });
}

template class QuaternionBase<Real32>;
template class QuaternionBase<Real64>;

OSG_END_NAMESPACE
