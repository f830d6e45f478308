#include "Base/OSGMatrixDecomposition.h"

#include <cmath>

OSG_BEGIN_NAMESPACE

namespace {

constexpr Matrix3 unit { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } };
constexpr int maxIterations = 64;
constexpr Real64 converged = 1e-14;

// The rows are the cross products of the rows of `a`. The result equals the transposed inverse
// times the determinant.
Matrix3 cofactors(const Matrix3 &a)
{
    Matrix3 result;
    for (int r = 0; r < 3; ++r) {
        const Real64 *u = a.m[(r + 1) % 3];
        const Real64 *v = a.m[(r + 2) % 3];
        for (int c = 0; c < 3; ++c) {
            const int d = (c + 1) % 3;
            const int e = (c + 2) % 3;
            result.m[r][c] = u[d] * v[e] - u[e] * v[d];
        }
    }
    return result;
}

Real64 determinant(const Matrix3 &a, const Matrix3 &cofactor)
{
    return a.m[0][0] * cofactor.m[0][0] + a.m[0][1] * cofactor.m[0][1]
        + a.m[0][2] * cofactor.m[0][2];
}

// The orthogonal factor of the polar decomposition. The iteration replaces a matrix by the mean of
// itself and its transposed inverse until it converges. A singular matrix has no such factor, so
// the result is the identity.
Matrix3 orthogonalFactor(Matrix3 a)
{
    for (int iteration = 0; iteration < maxIterations; ++iteration) {
        const Matrix3 cofactor = cofactors(a);
        const Real64 det = determinant(a, cofactor);
        if (std::fabs(det) < 1e-30) {
            return unit;
        }
        Real64 change = 0;
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 3; ++c) {
                const Real64 next = (a.m[r][c] + cofactor.m[r][c] / det) / 2;
                change = std::fmax(change, std::fabs(next - a.m[r][c]));
                a.m[r][c] = next;
            }
        }
        if (change < converged) {
            break;
        }
    }
    return a;
}

Matrix3 negated(Matrix3 a)
{
    for (auto &row : a.m) {
        for (Real64 &value : row) {
            value = -value;
        }
    }
    return a;
}

// The rotation in the plane of the axes p and q that makes s[p][q] zero.
Matrix3 planeRotation(const Matrix3 &s, int p, int q)
{
    const Real64 angle = std::atan2(2 * s.m[p][q], s.m[q][q] - s.m[p][p]) / 2;
    // Of the two solutions, the one up to 45 degrees does not exchange the axes.
    const Real64 small = std::remainder(angle, std::acos(0.0));
    Matrix3 result = unit;
    result.m[p][p] = result.m[q][q] = std::cos(small);
    result.m[p][q] = std::sin(small);
    result.m[q][p] = -std::sin(small);
    return result;
}

Real64 offDiagonal(const Matrix3 &s)
{
    return std::fabs(s.m[0][1]) + std::fabs(s.m[0][2]) + std::fabs(s.m[1][2]);
}

// Jacobi's method. Makes the symmetric matrix `s` diagonal and returns the axes for this.
Matrix3 diagonalize(Matrix3 &s)
{
    Matrix3 axes = unit;
    const Real64 size = std::fabs(s.m[0][0]) + std::fabs(s.m[1][1]) + std::fabs(s.m[2][2]);
    for (int sweep = 0; sweep < maxIterations && offDiagonal(s) > converged * size; ++sweep) {
        for (int p = 0; p < 3; ++p) {
            const Matrix3 turn = planeRotation(s, p, (p + 1) % 3);
            s = product(transposed(turn), product(s, turn));
            axes = product(axes, turn);
        }
    }
    return axes;
}

} // namespace

Matrix3 product(const Matrix3 &a, const Matrix3 &b)
{
    Matrix3 result;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) {
            result.m[r][c] = a.m[r][0] * b.m[0][c] + a.m[r][1] * b.m[1][c] + a.m[r][2] * b.m[2][c];
        }
    }
    return result;
}

Matrix3 transposed(const Matrix3 &a)
{
    Matrix3 result;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) {
            result.m[r][c] = a.m[c][r];
        }
    }
    return result;
}

Decomposition decompose(const Matrix3 &a)
{
    Decomposition result;
    result.rotation = orthogonalFactor(a);
    if (determinant(result.rotation, cofactors(result.rotation)) < 0) {
        result.rotation = negated(result.rotation);
    }
    Matrix3 stretch = product(transposed(result.rotation), a);
    result.scaleOrientation = diagonalize(stretch);
    for (int i = 0; i < 3; ++i) {
        result.scale[i] = stretch.m[i][i];
    }
    return result;
}

OSG_END_NAMESPACE
