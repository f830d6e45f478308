#pragma once

#include <OpenSG/OSGVector.h>

OSG_BEGIN_NAMESPACE

template <class T> class TransformationMatrix;

/// A rotation with the components x, y, z, w. A default quaternion is the identity (0, 0, 0, 1).
/// Comparisons have the absolute tolerance Eps for each component, so q and -q differ although they
/// are the same rotation. An axis that is shorter than 1e-6 or not finite gives the identity.
template <class T> class QuaternionBase
{
public:
    typedef T ValueType;
    typedef VectorInterface<T, VecStorage3<T>> VectorType;
    typedef TransformationMatrix<T> MatrixType;

    QuaternionBase() = default;
    explicit QuaternionBase(const MatrixType &matrix) { setValue(matrix); }
    QuaternionBase(const VectorType &axis, T angle) { setValueAsAxisRad(axis, angle); }
    /// The shortest rotation from one direction to another.
    QuaternionBase(const VectorType &from, const VectorType &to) { setValue(from, to); }

    static QuaternionBase identity() { return {}; }
    void setIdentity() { *this = {}; }

    void setValue(const MatrixType &matrix);
    void setValue(const VectorType &from, const VectorType &to);

    /// The numbers are x, y, z and angle. In a text they are separated by white space only.
    void setValueAsAxisRad(T x, T y, T z, T angle);
    void setValueAsAxisRad(const VectorType &axis, T angle);
    void setValueAsAxisRad(const T *values);
    void setValueAsAxisRad(const Char8 *text);
    void setValueAsAxisDeg(T x, T y, T z, T angle);
    void setValueAsAxisDeg(const VectorType &axis, T angle);
    void setValueAsAxisDeg(const T *values);
    void setValueAsAxisDeg(const Char8 *text);
    void setValueAsQuat(T x, T y, T z, T w);
    void setValueAsQuat(const T *values);
    void setValueAsQuat(const Char8 *text);

    /// The angle is 0 to 2 Pi, or 0 to 360 degrees. The axis of the identity is z.
    void getValueAsAxisRad(T &x, T &y, T &z, T &angle) const;
    void getValueAsAxisRad(VectorType &axis, T &angle) const;
    void getValueAsAxisDeg(T &x, T &y, T &z, T &angle) const;
    void getValueAsAxisDeg(VectorType &axis, T &angle) const;
    void getValueAsQuat(T &x, T &y, T &z, T &w) const;
    /// Sets `matrix` to the rotation matrix.
    void getValue(MatrixType &matrix) const;

    const T *getValues() const { return _values; }
    T x() const { return _values[0]; }
    T y() const { return _values[1]; }
    T z() const { return _values[2]; }
    T w() const { return _values[3]; }
    T &operator[](UInt32 index) { return _values[index]; }
    const T &operator[](UInt32 index) const { return _values[index]; }

    T length() const;
    void normalize();
    void invert();
    QuaternionBase inverse() const;

    /// this = this * other: rotates by `other` first.
    void mult(const QuaternionBase &other);
    /// this = other * this: rotates by `other` afterwards.
    void multLeft(const QuaternionBase &other);
    QuaternionBase operator*(const QuaternionBase &other) const;
    QuaternionBase &operator*=(const QuaternionBase &other);

    /// Interpolates on the shorter way between the two rotations. `share` is 0 to 1.
    void slerpThis(const QuaternionBase &from, const QuaternionBase &to, T share);

    bool equals(const QuaternionBase &other, T tolerance) const;
    bool operator==(const QuaternionBase &other) const
    {
        return equals(other, static_cast<T>(Eps));
    }
    bool operator!=(const QuaternionBase &other) const { return !(*this == other); }

private:
    T _values[4] = { 0, 0, 0, 1 };
};

extern template class QuaternionBase<Real32>;
extern template class QuaternionBase<Real64>;

typedef QuaternionBase<Real32> Quaternion;

OSG_END_NAMESPACE
