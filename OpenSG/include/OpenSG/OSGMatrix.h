#pragma once

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <iosfwd>

OSG_BEGIN_NAMESPACE

/// A 4x4 matrix of four column vectors: `m[column][row]`. The translation is `m[3]`. getValues()
/// has the order of OpenGL. Functions with sixteen scalars take them row by row. A default matrix
/// is the identity. Comparisons have the absolute tolerance Eps.
template <class T> class TransformationMatrix
{
public:
    typedef T ValueType;
    typedef VectorInterface<T, VecStorage4<T>> VectorType;
    typedef VectorInterface<T, VecStorage3<T>> VectorType3f;
    typedef PointInterface<T, VecStorage3<T>> PointType3f;
    typedef QuaternionBase<T> QuaternionType;

    TransformationMatrix() { setIdentity(); }
    TransformationMatrix(T rVal00, T rVal10, T rVal20, T rVal30, //
        T rVal01, T rVal11, T rVal21, T rVal31, //
        T rVal02, T rVal12, T rVal22, T rVal32, //
        T rVal03, T rVal13, T rVal23, T rVal33);
    TransformationMatrix(const VectorType &column0, const VectorType &column1,
        const VectorType &column2, const VectorType &column3);

    static const TransformationMatrix &identity();
    void setIdentity();

    void setValue(const TransformationMatrix &other) { *this = other; }
    void setValue(T rVal00, T rVal10, T rVal20, T rVal30, //
        T rVal01, T rVal11, T rVal21, T rVal31, //
        T rVal02, T rVal12, T rVal22, T rVal32, //
        T rVal03, T rVal13, T rVal23, T rVal33);
    void setValueTransposed(T rVal00, T rVal01, T rVal02, T rVal03, //
        T rVal10, T rVal11, T rVal12, T rVal13, //
        T rVal20, T rVal21, T rVal22, T rVal23, //
        T rVal30, T rVal31, T rVal32, T rVal33);
    /// The values are column by column if `bTransposed` is true, row by row if it is false.
    void setValue(const T *values, bool bTransposed = true);
    /// Reads the values from a text. Missing numbers are 0. NULL and an empty text give the
    /// identity.
    void setValue(const Char8 *text, bool bTransposed = true);

    T *getValues() { return _columns[0].getValues(); }
    const T *getValues() const { return _columns[0].getValues(); }
    VectorType &operator[](UInt32 column) { return _columns[column]; }
    const VectorType &operator[](UInt32 column) const { return _columns[column]; }

    /// These change only a part of the matrix: the diagonal, the last column or the upper left 3x3.
    void setScale(T scale) { setScale(scale, scale, scale); }
    void setScale(T x, T y, T z);
    void setScale(const VectorType3f &scale) { setScale(scale.x(), scale.y(), scale.z()); }
    void setTranslate(T x, T y, T z);
    void setTranslate(const VectorType3f &t) { setTranslate(t.x(), t.y(), t.z()); }
    void setTranslate(const PointType3f &p) { setTranslate(p.x(), p.y(), p.z()); }
    void setRotate(const QuaternionType &rotation);

    /// These set the whole matrix to T(translation) T(center) R(rotation) R(scaleOrientation)
    /// S(scale) R(scaleOrientation)^-1 T(-center), for column vectors.
    void setTransform(const VectorType3f &translation);
    void setTransform(const QuaternionType &rotation);
    void setTransform(const VectorType3f &translation, const QuaternionType &rotation);
    void setTransform(
        const VectorType3f &translation, const QuaternionType &rotation, const VectorType3f &scale);
    void setTransform(const VectorType3f &translation, const QuaternionType &rotation,
        const VectorType3f &scale, const QuaternionType &scaleOrientation);
    void setTransform(const VectorType3f &translation, const QuaternionType &rotation,
        const VectorType3f &scale, const QuaternionType &scaleOrientation,
        const VectorType3f &center);

    /// Finds arguments for setTransform that give this matrix. The center is an argument.
    void getTransform(VectorType3f &translation, QuaternionType &rotation, VectorType3f &scale,
        QuaternionType &scaleOrientation) const;
    void getTransform(VectorType3f &translation, QuaternionType &rotation, VectorType3f &scale,
        QuaternionType &scaleOrientation, const VectorType3f &center) const;

    /// The translation applies to points, not to directions. The result is not divided by w.
    void multMatrixPnt(PointType3f &point) const { multMatrixPnt(point, point); }
    void multMatrixPnt(const PointType3f &source, PointType3f &result) const;
    void multMatrixVec(VectorType3f &vector) const { multMatrixVec(vector, vector); }
    void multMatrixVec(const VectorType3f &source, VectorType3f &result) const;

    /// this = this * other.
    void mult(const TransformationMatrix &other);
    /// this = other * this.
    void multLeft(const TransformationMatrix &other);

    /// Return false and leave the result alone if there is no inverse.
    bool inverse(TransformationMatrix &result) const;
    bool invert() { return inverse(*this); }
    bool invertFrom(const TransformationMatrix &other) { return other.inverse(*this); }

    bool transpose();
    bool transposed(TransformationMatrix &result) const;
    T det() const;

    bool equals(const TransformationMatrix &other, T tolerance) const;
    bool operator==(const TransformationMatrix &other) const
    {
        return equals(other, static_cast<T>(Eps));
    }
    bool operator!=(const TransformationMatrix &other) const { return !(*this == other); }

private:
    VectorType _columns[4];
};

extern template class TransformationMatrix<Real32>;
extern template class TransformationMatrix<Real64>;

typedef TransformationMatrix<Real32> Matrix4f;
typedef TransformationMatrix<Real64> Matrix4d;
typedef Matrix4f Matrix;

/// Writes a line for each of the four rows.
std::ostream &operator<<(std::ostream &os, const Matrix4f &matrix);
std::ostream &operator<<(std::ostream &os, const Matrix4d &matrix);

OSG_END_NAMESPACE
