#include <OpenSG/OSGMatrix.h>

#include "Base/OSGMatrixDecomposition.h"

#include <ostream>

OSG_BEGIN_NAMESPACE

namespace {

template <class T> T subDeterminant(const TransformationMatrix<T> &m, UInt32 column, UInt32 row)
{
    T s[9];
    T *next = s;
    for (UInt32 c = 0; c < 4; ++c) {
        for (UInt32 r = 0; r < 4; ++r) {
            if (c != column && r != row) {
                *next++ = m[c][r];
            }
        }
    }
    const T sum = s[0] * (s[4] * s[8] - s[5] * s[7]) - s[1] * (s[3] * s[8] - s[5] * s[6])
        + s[2] * (s[3] * s[7] - s[4] * s[6]);
    return (column + row) % 2 == 0 ? sum : -sum;
}

template <class T> Matrix3 linearPart(const TransformationMatrix<T> &m)
{
    Matrix3 part;
    for (UInt32 r = 0; r < 3; ++r) {
        for (UInt32 c = 0; c < 3; ++c) {
            part.m[r][c] = m[c][r];
        }
    }
    return part;
}

template <class T> QuaternionBase<T> asQuaternion(const Matrix3 &rotation)
{
    TransformationMatrix<T> matrix;
    for (UInt32 r = 0; r < 3; ++r) {
        for (UInt32 c = 0; c < 3; ++c) {
            matrix[c][r] = static_cast<T>(rotation.m[r][c]);
        }
    }
    return QuaternionBase<T>(matrix);
}

template <class T> std::ostream &writeRows(std::ostream &os, const TransformationMatrix<T> &matrix)
{
    for (UInt32 row = 0; row < 4; ++row) {
        for (UInt32 column = 0; column < 4; ++column) {
            os << matrix[column][row] << (column < 3 ? ' ' : '\n');
        }
    }
    return os;
}

} // namespace

template <class T>
TransformationMatrix<T>::TransformationMatrix(T rVal00, T rVal10, T rVal20, T rVal30, T rVal01,
    T rVal11, T rVal21, T rVal31, T rVal02, T rVal12, T rVal22, T rVal32, T rVal03, T rVal13,
    T rVal23, T rVal33)
{
    setValue(rVal00, rVal10, rVal20, rVal30, rVal01, rVal11, rVal21, rVal31, rVal02, rVal12, rVal22,
        rVal32, rVal03, rVal13, rVal23, rVal33);
}

template <class T>
TransformationMatrix<T>::TransformationMatrix(const VectorType &column0, const VectorType &column1,
    const VectorType &column2, const VectorType &column3)
    : _columns { column0, column1, column2, column3 }
{
}

template <class T> const TransformationMatrix<T> &TransformationMatrix<T>::identity()
{
    static const TransformationMatrix matrix;
    return matrix;
}

template <class T> void TransformationMatrix<T>::setIdentity()
{
    for (UInt32 i = 0; i < 4; ++i) {
        _columns[i].setNull();
        _columns[i][i] = 1;
    }
}

template <class T>
void TransformationMatrix<T>::setValue(T rVal00, T rVal10, T rVal20, T rVal30, T rVal01, T rVal11,
    T rVal21, T rVal31, T rVal02, T rVal12, T rVal22, T rVal32, T rVal03, T rVal13, T rVal23,
    T rVal33)
{
    _columns[0].setValues(rVal00, rVal01, rVal02, rVal03);
    _columns[1].setValues(rVal10, rVal11, rVal12, rVal13);
    _columns[2].setValues(rVal20, rVal21, rVal22, rVal23);
    _columns[3].setValues(rVal30, rVal31, rVal32, rVal33);
}

template <class T>
void TransformationMatrix<T>::setValueTransposed(T rVal00, T rVal01, T rVal02, T rVal03, T rVal10,
    T rVal11, T rVal12, T rVal13, T rVal20, T rVal21, T rVal22, T rVal23, T rVal30, T rVal31,
    T rVal32, T rVal33)
{
    setValue(rVal00, rVal10, rVal20, rVal30, rVal01, rVal11, rVal21, rVal31, rVal02, rVal12, rVal22,
        rVal32, rVal03, rVal13, rVal23, rVal33);
}

template <class T> void TransformationMatrix<T>::setValue(const T *values, bool bTransposed)
{
    std::copy_n(values, 16, getValues());
    if (!bTransposed) {
        transpose();
    }
}

template <class T> void TransformationMatrix<T>::setValue(const Char8 *text, bool bTransposed)
{
    if (!text || *text == 0) {
        setIdentity();
        return;
    }
    T numbers[16];
    NumberText::readList(text, numbers, 16);
    setValue(numbers, bTransposed);
}

template <class T> void TransformationMatrix<T>::setScale(T x, T y, T z)
{
    _columns[0][0] = x;
    _columns[1][1] = y;
    _columns[2][2] = z;
}

template <class T> void TransformationMatrix<T>::setTranslate(T x, T y, T z)
{
    std::copy_n(VectorType3f(x, y, z).getValues(), 3, _columns[3].getValues());
}

template <class T> void TransformationMatrix<T>::setRotate(const QuaternionType &rotation)
{
    TransformationMatrix matrix;
    rotation.getValue(matrix);
    for (UInt32 column = 0; column < 3; ++column) {
        std::copy_n(matrix[column].getValues(), 3, _columns[column].getValues());
    }
}

template <class T> void TransformationMatrix<T>::setTransform(const VectorType3f &translation)
{
    setIdentity();
    setTranslate(translation);
}

template <class T> void TransformationMatrix<T>::setTransform(const QuaternionType &rotation)
{
    rotation.getValue(*this);
}

template <class T>
void TransformationMatrix<T>::setTransform(
    const VectorType3f &translation, const QuaternionType &rotation)
{
    setTransform(rotation);
    setTranslate(translation);
}

template <class T>
void TransformationMatrix<T>::setTransform(
    const VectorType3f &translation, const QuaternionType &rotation, const VectorType3f &scale)
{
    setTransform(translation, rotation);
    for (UInt32 column = 0; column < 3; ++column) {
        _columns[column] *= scale[column];
    }
}

template <class T>
void TransformationMatrix<T>::setTransform(const VectorType3f &translation,
    const QuaternionType &rotation, const VectorType3f &scale,
    const QuaternionType &scaleOrientation)
{
    TransformationMatrix unturned;
    unturned.setTransform(scaleOrientation.inverse());
    setTransform(translation, rotation * scaleOrientation, scale);
    mult(unturned);
}

template <class T>
void TransformationMatrix<T>::setTransform(const VectorType3f &translation,
    const QuaternionType &rotation, const VectorType3f &scale,
    const QuaternionType &scaleOrientation, const VectorType3f &center)
{
    TransformationMatrix fromCenter;
    fromCenter.setTranslate(-center);
    setTransform(translation + center, rotation, scale, scaleOrientation);
    mult(fromCenter);
}

template <class T>
void TransformationMatrix<T>::getTransform(VectorType3f &translation, QuaternionType &rotation,
    VectorType3f &scale, QuaternionType &scaleOrientation) const
{
    getTransform(translation, rotation, scale, scaleOrientation, VectorType3f());
}

template <class T>
void TransformationMatrix<T>::getTransform(VectorType3f &translation, QuaternionType &rotation,
    VectorType3f &scale, QuaternionType &scaleOrientation, const VectorType3f &center) const
{
    PointType3f movedCenter;
    multMatrixPnt(center, movedCenter);
    translation = movedCenter - PointType3f(center);
    const Decomposition parts = decompose(linearPart(*this));
    rotation = asQuaternion<T>(parts.rotation);
    scaleOrientation = asQuaternion<T>(parts.scaleOrientation);
    scale.setValues(parts.scale[0], parts.scale[1], parts.scale[2]);
}

template <class T>
void TransformationMatrix<T>::multMatrixPnt(const PointType3f &source, PointType3f &result) const
{
    VectorType3f moved(source);
    multMatrixVec(moved);
    result = moved.addToZero() + VectorType3f(_columns[3]);
}

template <class T>
void TransformationMatrix<T>::multMatrixVec(const VectorType3f &source, VectorType3f &result) const
{
    const VectorType sum
        = _columns[0] * source[0] + _columns[1] * source[1] + _columns[2] * source[2];
    result = VectorType3f(sum);
}

template <class T> void TransformationMatrix<T>::mult(const TransformationMatrix &other)
{
    TransformationMatrix result;
    for (UInt32 column = 0; column < 4; ++column) {
        const VectorType &factors = other._columns[column];
        result._columns[column] = _columns[0] * factors[0] + _columns[1] * factors[1]
            + _columns[2] * factors[2] + _columns[3] * factors[3];
    }
    *this = result;
}

template <class T> void TransformationMatrix<T>::multLeft(const TransformationMatrix &other)
{
    TransformationMatrix result(other);
    result.mult(*this);
    *this = result;
}

template <class T> bool TransformationMatrix<T>::inverse(TransformationMatrix &result) const
{
    const T determinant = det();
    if (determinant == 0 || !std::isfinite(determinant)) {
        return false;
    }
    TransformationMatrix inverted;
    for (UInt32 column = 0; column < 4; ++column) {
        for (UInt32 row = 0; row < 4; ++row) {
            inverted[column][row] = subDeterminant(*this, row, column) / determinant;
        }
    }
    result = inverted;
    return true;
}

template <class T> bool TransformationMatrix<T>::transpose()
{
    return transposed(*this);
}

template <class T> bool TransformationMatrix<T>::transposed(TransformationMatrix &result) const
{
    TransformationMatrix turned;
    for (UInt32 column = 0; column < 4; ++column) {
        for (UInt32 row = 0; row < 4; ++row) {
            turned[column][row] = _columns[row][column];
        }
    }
    result = turned;
    return true;
}

template <class T> T TransformationMatrix<T>::det() const
{
    T sum = 0;
    for (UInt32 column = 0; column < 4; ++column) {
        sum += _columns[column][0] * subDeterminant(*this, column, 0);
    }
    return sum;
}

template <class T>
bool TransformationMatrix<T>::equals(const TransformationMatrix &other, T tolerance) const
{
    return std::equal(_columns, _columns + 4, other._columns,
        [tolerance](const VectorType &a, const VectorType &b) { return a.equals(b, tolerance); });
}

template class TransformationMatrix<Real32>;
template class TransformationMatrix<Real64>;

std::ostream &operator<<(std::ostream &os, const Matrix4f &matrix)
{
    return writeRows(os, matrix);
}

std::ostream &operator<<(std::ostream &os, const Matrix4d &matrix)
{
    return writeRows(os, matrix);
}

OSG_END_NAMESPACE
