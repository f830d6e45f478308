#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// A 3x3 matrix, [row][column].
struct Matrix3
{
    Real64 m[3][3];
};

Matrix3 product(const Matrix3 &a, const Matrix3 &b);
Matrix3 transposed(const Matrix3 &a);

/// The factors of a = rotation * scaleOrientation * diagonal(scale) * scaleOrientation^T. Both
/// rotations are proper. A mirroring gives negative scale factors.
struct Decomposition
{
    Matrix3 rotation;
    Matrix3 scaleOrientation;
    Real64 scale[3];
};

Decomposition decompose(const Matrix3 &a);

OSG_END_NAMESPACE
