#include <OpenSG/OSGMatrix.h>

#include <QtTest>

#include <limits>

using namespace osg;

Q_DECLARE_METATYPE(Vec3f)
Q_DECLARE_METATYPE(Quaternion)

/// Matrices and quaternions.
class tst_Matrices : public QObject
{
    Q_OBJECT

private slots:
    void scalarsOfAMatrixAreGivenByRows();
    void theTranslationIsTheLastColumn();
    void settersChangeOnlyTheirPart();
    void setTransformMultipliesItsPartsInOrder();
    void aTransformComesApartAgain_data();
    void aTransformComesApartAgain();
    void aMatrixTimesItsInverseIsTheIdentity();
    void aSingularMatrixHasNoInverse();
    void matricesCompareWithinEps();
    void ninetyDegreesAboutZTurnXToY();
    void aShortAxisIsTheIdentity();
    void aQuaternionAndItsNegativeDiffer();
    void quaternionsComeBackFromMatrices_data();
    void quaternionsComeBackFromMatrices();
    void theRotationOfOneDirectionToAnother();
    void oppositeDirectionsTurnHalfCircle();
    void slerpGoesTheShorterWay();
    void productsRotateTheRightFactorFirst();
};

void tst_Matrices::scalarsOfAMatrixAreGivenByRows()
{
    const Matrix matrix(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    QCOMPARE(matrix[0], Vec4f(1, 5, 9, 13));
    QCOMPARE(matrix.getValues()[12], 4.f);
    Matrix transposed;
    transposed.setValueTransposed(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    QCOMPARE(transposed[0], Vec4f(1, 2, 3, 4));
    transposed.transpose();
    QCOMPARE(transposed, matrix);
}

void tst_Matrices::theTranslationIsTheLastColumn()
{
    Matrix matrix;
    matrix.setTranslate(1, 2, 3);
    QCOMPARE(matrix[3], Vec4f(1, 2, 3, 1));
    QCOMPARE(matrix.getValues()[12], 1.f);
    Pnt3f point(1, 1, 1);
    Vec3f direction(1, 1, 1);
    matrix.multMatrixPnt(point);
    matrix.multMatrixVec(direction);
    QCOMPARE(point, Pnt3f(2, 3, 4));
    QCOMPARE(direction, Vec3f(1, 1, 1));
}

void tst_Matrices::settersChangeOnlyTheirPart()
{
    Matrix matrix;
    matrix.setTranslate(1, 2, 3);
    matrix.setScale(2);
    QCOMPARE(matrix[3], Vec4f(1, 2, 3, 1));
    QCOMPARE(matrix[1], Vec4f(0, 2, 0, 0));
    matrix.setRotate(Quaternion());
    QCOMPARE(matrix[1], Vec4f(0, 1, 0, 0));
}

void tst_Matrices::setTransformMultipliesItsPartsInOrder()
{
    const Vec3f translation(1, 2, 3), scale(2, 3, 4), center(5, 6, 7);
    const Quaternion rotation(Vec3f(0, 1, 0), 0.5f), orientation(Vec3f(1, 1, 0), 0.3f);
    Matrix expected, part;
    const auto append = [&expected](const Matrix &factor) { expected.mult(factor); };
    part.setTransform(translation), append(part);
    part.setTransform(center), append(part);
    part.setTransform(rotation), append(part);
    part.setTransform(orientation), append(part);
    part.setIdentity(), part.setScale(scale), append(part);
    part.setTransform(orientation.inverse()), append(part);
    part.setTransform(-center), append(part);

    Matrix matrix;
    matrix.setTransform(translation, rotation, scale, orientation, center);
    QVERIFY(matrix.equals(expected, 1e-5f));
}

void tst_Matrices::aTransformComesApartAgain_data()
{
    QTest::addColumn<Vec3f>("scale");
    QTest::addColumn<Quaternion>("orientation");
    const Quaternion tilted(Vec3f(1, 2, 3), 0.4f);
    QTest::newRow("rigid") << Vec3f(1, 1, 1) << Quaternion();
    QTest::newRow("scaled") << Vec3f(2, 3, 4) << Quaternion();
    QTest::newRow("scaled along tilted axes") << Vec3f(2, 3, 4) << tilted;
    QTest::newRow("mirrored") << Vec3f(-2, 3, 4) << tilted;
    QTest::newRow("flattened") << Vec3f(2, 3, 0) << tilted;
}

void tst_Matrices::aTransformComesApartAgain()
{
    QFETCH(Vec3f, scale);
    QFETCH(Quaternion, orientation);
    const Vec3f center(5, 6, 7);
    Matrix matrix, rebuilt;
    matrix.setTransform(Vec3f(1, 2, 3), Quaternion(Vec3f(0, 1, 0), 1), scale, orientation, center);

    Vec3f translation;
    Quaternion rotation;
    matrix.getTransform(translation, rotation, scale, orientation, center);
    rebuilt.setTransform(translation, rotation, scale, orientation, center);
    QVERIFY(translation.equals(Vec3f(1, 2, 3), 1e-4f));
    QVERIFY(rebuilt.equals(matrix, 1e-4f));
}

void tst_Matrices::aMatrixTimesItsInverseIsTheIdentity()
{
    Matrix matrix, inverted;
    matrix.setTransform(Vec3f(1, 2, 3), Quaternion(Vec3f(1, 1, 0), 0.7f), Vec3f(2, 3, 4));
    QVERIFY(inverted.invertFrom(matrix));
    inverted.mult(matrix);
    QVERIFY(inverted.equals(Matrix::identity(), 1e-5f));
    QVERIFY(std::fabs(matrix.det() - 24) < 1e-4f);
}

void tst_Matrices::aSingularMatrixHasNoInverse()
{
    Matrix matrix, result;
    matrix.setScale(1, 0, 1);
    QVERIFY(!matrix.inverse(result));
    QCOMPARE(result, Matrix::identity());
}

void tst_Matrices::matricesCompareWithinEps()
{
    Matrix matrix;
    matrix[2][1] = 5e-7f;
    QVERIFY(matrix == Matrix::identity());
    matrix[2][1] = 2e-6f;
    QVERIFY(matrix != Matrix::identity());
}

void tst_Matrices::ninetyDegreesAboutZTurnXToY()
{
    Quaternion quaternion;
    quaternion.setValueAsAxisDeg(0, 0, 1, 90);
    QVERIFY(std::fabs(quaternion.z() - 0.707107f) < 1e-6f);
    QVERIFY(std::fabs(quaternion.w() - 0.707107f) < 1e-6f);
    Matrix matrix;
    quaternion.getValue(matrix);
    QVERIFY(std::fabs(matrix[0][1] - 1) < 1e-6f);
}

void tst_Matrices::aShortAxisIsTheIdentity()
{
    QCOMPARE(Quaternion(Vec3f(1e-7f, 0, 0), 1), Quaternion());
    QCOMPARE(Quaternion(Vec3f(std::numeric_limits<Real32>::quiet_NaN(), 0, 0), 1), Quaternion());
    QCOMPARE(Quaternion(Vec3f(std::numeric_limits<Real32>::infinity(), 0, 0), 1), Quaternion());
}

void tst_Matrices::aQuaternionAndItsNegativeDiffer()
{
    Quaternion quaternion;
    quaternion.setValueAsQuat(0, 0, 0, -1);
    QVERIFY(quaternion != Quaternion());
}

void tst_Matrices::quaternionsComeBackFromMatrices_data()
{
    QTest::addColumn<Vec3f>("axis");
    QTest::addColumn<float>("angle");
    for (const Vec3f &axis : { Vec3f(1, 0, 0), Vec3f(0, 1, 0), Vec3f(0, 0, 1), Vec3f(1, -2, 3) }) {
        for (const float angle : { 0.1f, 1.f, 2.5f, 3.1f }) {
            QTest::addRow("%g %g %g by %g", axis[0], axis[1], axis[2], angle) << axis << angle;
        }
    }
}

void tst_Matrices::quaternionsComeBackFromMatrices()
{
    QFETCH(Vec3f, axis);
    QFETCH(float, angle);
    const Quaternion quaternion(axis, angle);
    Matrix matrix;
    quaternion.getValue(matrix);
    Quaternion back(matrix);
    if (back.w() < 0) {
        back.setValueAsQuat(-back.x(), -back.y(), -back.z(), -back.w());
    }
    QVERIFY(back.equals(quaternion, 1e-5f));
}

void tst_Matrices::theRotationOfOneDirectionToAnother()
{
    Matrix matrix;
    Quaternion(Vec3f(1, 0, 0), Vec3f(0, 0, 3)).getValue(matrix);
    Vec3f direction(1, 0, 0);
    matrix.multMatrixVec(direction);
    QVERIFY(direction.equals(Vec3f(0, 0, 1), 1e-6f));
}

void tst_Matrices::oppositeDirectionsTurnHalfCircle()
{
    Matrix matrix;
    Quaternion(Vec3f(1, 2, 3), Vec3f(-1, -2, -3)).getValue(matrix);
    Vec3f direction(1, 2, 3);
    matrix.multMatrixVec(direction);
    QVERIFY(direction.equals(Vec3f(-1, -2, -3), 1e-5f));
}

void tst_Matrices::slerpGoesTheShorterWay()
{
    const Quaternion from(Vec3f(0, 0, 1), 0), to(Vec3f(0, 0, 1), 1);
    Quaternion negated, middle;
    negated.setValueAsQuat(-to.x(), -to.y(), -to.z(), -to.w());
    middle.slerpThis(from, negated, 0.5f);
    QVERIFY(middle.equals(Quaternion(Vec3f(0, 0, 1), 0.5f), 1e-6f));
    middle.slerpThis(from, from, 0.5f);
    QCOMPARE(middle, from);
}

void tst_Matrices::productsRotateTheRightFactorFirst()
{
    const Quaternion a(Vec3f(1, 0, 0), 0.5f), b(Vec3f(0, 1, 0), 0.7f);
    Matrix matrixA, matrixB, matrix;
    a.getValue(matrixA);
    b.getValue(matrixB);
    (a * b).getValue(matrix);
    matrixA.mult(matrixB);
    QVERIFY(matrix.equals(matrixA, 1e-6f));
    Quaternion left(b);
    left.multLeft(a);
    QCOMPARE(left, a * b);
}

QTEST_APPLESS_MAIN(tst_Matrices)
#include "tst_matrices.moc"
