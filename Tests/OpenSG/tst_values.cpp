#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGReal16.h>
#include <OpenSG/OSGTime.h>
#include <OpenSG/OSGVector.h>

#include <QtTest>

#include <limits>

using namespace osg;

Q_DECLARE_METATYPE(Vec3f)
Q_DECLARE_METATYPE(Quaternion)

class tst_Values : public QObject
{
    Q_OBJECT

private slots:
    void vectorsCompareWithinEps();
    void vectorsConvertBetweenSizesAndTypes();
    void pointMinusPointIsAVector();
    void vectorArithmetic();
    void anglesAndProjections();
    void aNullVectorNormalizesToNull();

    void coloursStartTransparentBlack();
    void coloursPackWithRedLowest();
    void hueSaturationValueRoundTrips_data();
    void hueSaturationValueRoundTrips();
    void byteColoursReadRealsAndWrap();

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

    void volumesStartValidAndEmpty();
    void staticVolumesStayValid();
    void emptyingValidates();
    void aBoxGrowsToWhatItIsExtendedBy();
    void invalidVolumesDoNotGrow();
    void infinityIsContagious();
    void boxesIntersectWhereTheyTouch();
    void aTransformedBoxContainsItsCorners();
    void boxComparisonIgnoresTheUpperZ();
    void aDynamicVolumeNeverEqualsAnything();
    void aSphereAroundTwoSpheres();
    void morphingKeepsTheContents();
    void theInstancePassesOnItsState();

    void halfFloatsKeepWhatTheyCanHold();
    void halfFloatsRoundAndOverflow();
    void systemTimeAdvances();
    void planesAreZeroUnlessGiven();
};

void tst_Values::vectorsCompareWithinEps()
{
    QVERIFY(Vec3f() == Vec3f(5e-7f, 0, 0));
    QVERIFY(Vec3f() != Vec3f(2e-6f, 0, 0));
    QVERIFY(Vec3f(1e-7f, 0, 0).isZero());
    QVERIFY(Vec3f(1, 2, 3).equals(Vec3f(1, 2, 3.5f), 0.5f));
}

void tst_Values::vectorsConvertBetweenSizesAndTypes()
{
    QCOMPARE(Vec4f(Vec3f(1, 2, 3)), Vec4f(1, 2, 3, 0));
    QCOMPARE(Vec2f(Pnt3d(1, 2, 3)), Vec2f(1, 2));
    QCOMPARE(Pnt3f(2), Pnt3f(2, 2, 2));
    const Real32 values[] = { 1, 2, 3 };
    QCOMPARE(Vec3f(values), Vec3f(1, 2, 3));
}

void tst_Values::pointMinusPointIsAVector()
{
    const Vec3f way = Pnt3f(1, 2, 3) - Pnt3f(1, 1, 1);
    QCOMPARE(way, Vec3f(0, 1, 2));
    const Pnt3f end = Pnt3f(1, 1, 1) + way;
    QCOMPARE(end, Pnt3f(1, 2, 3));
    QCOMPARE(end.subZero().addToZero(), end);
    QCOMPARE(end.dist(Pnt3f(1, 2, 0)), 3.f);
}

void tst_Values::vectorArithmetic()
{
    Vec3f vector(1, 2, 3);
    vector += Vec3f(1, 1, 1);
    vector *= 2;
    QCOMPARE(vector, Vec3f(4, 6, 8));
    QCOMPARE(vector / 2.f - Vec3f(2, 3, 4), Vec3f());
    QCOMPARE(Vec3f(1, 0, 0).cross(Vec3f(0, 1, 0)), Vec3f(0, 0, 1));
    QCOMPARE(Vec3f(1, 2, 3).dot(Vec3f(4, 5, 6)), 32.f);
    QCOMPARE(vector.maxValue(), 8.f);
    vector.negate();
    QCOMPARE(-vector, Vec3f(4, 6, 8));
}

void tst_Values::anglesAndProjections()
{
    QCOMPARE(Vec3f(1, 0, 0).enclosedAngle(Vec3f(0, 2, 0)), Pi / 2);
    QCOMPARE(Vec3f(1, 0, 0).enclosedAngle(Vec3f(-3, 0, 0)), Pi);
    Vec3f vector(3, 4, 0);
    QCOMPARE(vector.projectTo(Vec3f(2, 0, 0)), 3.f);
    QCOMPARE(vector, Vec3f(3, 0, 0));
}

void tst_Values::aNullVectorNormalizesToNull()
{
    Vec3f vector;
    vector.normalize();
    QVERIFY(vector.isZero());
}

void tst_Values::coloursStartTransparentBlack()
{
    QCOMPARE(Color4f().alpha(), 0.f);
    QCOMPARE(Color4f(), Color4f(0, 0, 0, 0));
}

void tst_Values::coloursPackWithRedLowest()
{
    QCOMPARE(Color3ub(255, 0, 0).getRGB(), UInt32(0xff));
    QCOMPARE(Color3f(0, 0, 1).getRGB(), UInt32(0xff0000));
    Color4ub colour;
    colour.setRGBA(0x80fe0201);
    QCOMPARE(colour, Color4ub(1, 2, 254, 128));
    QCOMPARE(colour.getRGBA(), UInt32(0x80fe0201));
}

void tst_Values::hueSaturationValueRoundTrips_data()
{
    QTest::addColumn<float>("hue");
    QTest::addColumn<float>("red");
    QTest::addColumn<float>("green");
    QTest::addColumn<float>("blue");
    QTest::newRow("red") << 0.f << 0.8f << 0.4f << 0.4f;
    QTest::newRow("yellow") << 60.f << 0.8f << 0.8f << 0.4f;
    QTest::newRow("green") << 120.f << 0.4f << 0.8f << 0.4f;
    QTest::newRow("cyan") << 180.f << 0.4f << 0.8f << 0.8f;
    QTest::newRow("blue") << 240.f << 0.4f << 0.4f << 0.8f;
    QTest::newRow("magenta") << 300.f << 0.8f << 0.4f << 0.8f;
    QTest::newRow("orange") << 30.f << 0.8f << 0.6f << 0.4f;
    QTest::newRow("pink") << 330.f << 0.8f << 0.4f << 0.6f;
}

void tst_Values::hueSaturationValueRoundTrips()
{
    QFETCH(float, hue);
    QFETCH(float, red);
    QFETCH(float, green);
    QFETCH(float, blue);
    Color3f colour;
    colour.setValuesHSV(hue, 0.5f, 0.8f);
    QCOMPARE(colour, Color3f(red, green, blue));
    Real32 back, saturation, value;
    colour.convertToHSV(back, saturation, value);
    QVERIFY(std::fabs(back - hue) < 1e-3f);
    QCOMPARE(saturation, 0.5f);
    QCOMPARE(value, 0.8f);
}

void tst_Values::byteColoursReadRealsAndWrap()
{
    Color4ub colour;
    colour.setValue("300 -1 0.9 nan");
    QCOMPARE(colour, Color4ub(44, 255, 0, 0));
}

void tst_Values::scalarsOfAMatrixAreGivenByRows()
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

void tst_Values::theTranslationIsTheLastColumn()
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

void tst_Values::settersChangeOnlyTheirPart()
{
    Matrix matrix;
    matrix.setTranslate(1, 2, 3);
    matrix.setScale(2);
    QCOMPARE(matrix[3], Vec4f(1, 2, 3, 1));
    QCOMPARE(matrix[1], Vec4f(0, 2, 0, 0));
    matrix.setRotate(Quaternion());
    QCOMPARE(matrix[1], Vec4f(0, 1, 0, 0));
}

void tst_Values::setTransformMultipliesItsPartsInOrder()
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

void tst_Values::aTransformComesApartAgain_data()
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

void tst_Values::aTransformComesApartAgain()
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

void tst_Values::aMatrixTimesItsInverseIsTheIdentity()
{
    Matrix matrix, inverted;
    matrix.setTransform(Vec3f(1, 2, 3), Quaternion(Vec3f(1, 1, 0), 0.7f), Vec3f(2, 3, 4));
    QVERIFY(inverted.invertFrom(matrix));
    inverted.mult(matrix);
    QVERIFY(inverted.equals(Matrix::identity(), 1e-5f));
    QVERIFY(std::fabs(matrix.det() - 24) < 1e-4f);
}

void tst_Values::aSingularMatrixHasNoInverse()
{
    Matrix matrix, result;
    matrix.setScale(1, 0, 1);
    QVERIFY(!matrix.inverse(result));
    QCOMPARE(result, Matrix::identity());
}

void tst_Values::matricesCompareWithinEps()
{
    Matrix matrix;
    matrix[2][1] = 5e-7f;
    QVERIFY(matrix == Matrix::identity());
    matrix[2][1] = 2e-6f;
    QVERIFY(matrix != Matrix::identity());
}

void tst_Values::ninetyDegreesAboutZTurnXToY()
{
    Quaternion quaternion;
    quaternion.setValueAsAxisDeg(0, 0, 1, 90);
    QVERIFY(std::fabs(quaternion.z() - 0.707107f) < 1e-6f);
    QVERIFY(std::fabs(quaternion.w() - 0.707107f) < 1e-6f);
    Matrix matrix;
    quaternion.getValue(matrix);
    QVERIFY(std::fabs(matrix[0][1] - 1) < 1e-6f);
}

void tst_Values::aShortAxisIsTheIdentity()
{
    QCOMPARE(Quaternion(Vec3f(1e-7f, 0, 0), 1), Quaternion());
    QCOMPARE(Quaternion(Vec3f(std::numeric_limits<Real32>::quiet_NaN(), 0, 0), 1), Quaternion());
    QCOMPARE(Quaternion(Vec3f(std::numeric_limits<Real32>::infinity(), 0, 0), 1), Quaternion());
}

void tst_Values::aQuaternionAndItsNegativeDiffer()
{
    Quaternion quaternion;
    quaternion.setValueAsQuat(0, 0, 0, -1);
    QVERIFY(quaternion != Quaternion());
}

void tst_Values::quaternionsComeBackFromMatrices_data()
{
    QTest::addColumn<Vec3f>("axis");
    QTest::addColumn<float>("angle");
    for (const Vec3f &axis : { Vec3f(1, 0, 0), Vec3f(0, 1, 0), Vec3f(0, 0, 1), Vec3f(1, -2, 3) }) {
        for (const float angle : { 0.1f, 1.f, 2.5f, 3.1f }) {
            QTest::addRow("%g %g %g by %g", axis[0], axis[1], axis[2], angle) << axis << angle;
        }
    }
}

void tst_Values::quaternionsComeBackFromMatrices()
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

void tst_Values::theRotationOfOneDirectionToAnother()
{
    Matrix matrix;
    Quaternion(Vec3f(1, 0, 0), Vec3f(0, 0, 3)).getValue(matrix);
    Vec3f direction(1, 0, 0);
    matrix.multMatrixVec(direction);
    QVERIFY(direction.equals(Vec3f(0, 0, 1), 1e-6f));
}

void tst_Values::oppositeDirectionsTurnHalfCircle()
{
    Matrix matrix;
    Quaternion(Vec3f(1, 2, 3), Vec3f(-1, -2, -3)).getValue(matrix);
    Vec3f direction(1, 2, 3);
    matrix.multMatrixVec(direction);
    QVERIFY(direction.equals(Vec3f(-1, -2, -3), 1e-5f));
}

void tst_Values::slerpGoesTheShorterWay()
{
    const Quaternion from(Vec3f(0, 0, 1), 0), to(Vec3f(0, 0, 1), 1);
    Quaternion negated, middle;
    negated.setValueAsQuat(-to.x(), -to.y(), -to.z(), -to.w());
    middle.slerpThis(from, negated, 0.5f);
    QVERIFY(middle.equals(Quaternion(Vec3f(0, 0, 1), 0.5f), 1e-6f));
    middle.slerpThis(from, from, 0.5f);
    QCOMPARE(middle, from);
}

void tst_Values::productsRotateTheRightFactorFirst()
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

void tst_Values::volumesStartValidAndEmpty()
{
    QCOMPARE(int(BoxVolume().getState()), Volume::OSGVALID | Volume::OSGEMPTY);
    QCOMPARE(int(DynamicVolume().getState()), 3);
    QCOMPARE(BoxVolume().getMax(), Pnt3f());
    QVERIFY(!BoxVolume(0, 0, 0, 1, 1, 1).isEmpty());
}

void tst_Values::staticVolumesStayValid()
{
    DynamicVolume volume;
    volume.setStatic();
    volume.setValid(false);
    QVERIFY(volume.isValid());
    volume.setStatic(false);
    volume.setValid(false);
    QVERIFY(!volume.isValid());
}

void tst_Values::emptyingValidates()
{
    BoxVolume volume(0, 0, 0, 1, 1, 1);
    volume.setValid(false);
    volume.setEmpty();
    QVERIFY(volume.isValid());
    QVERIFY(volume.isEmpty());
}

void tst_Values::aBoxGrowsToWhatItIsExtendedBy()
{
    BoxVolume box;
    box.extendBy(Pnt3f(1, 1, 1));
    box.extendBy(SphereVolume(Pnt3f(3, 1, 1), 2));
    QCOMPARE(box.getMin(), Pnt3f(1, -1, -1));
    QCOMPARE(box.getMax(), Pnt3f(5, 3, 3));
    QCOMPARE(box.getScalarVolume(), 64.f);
    box.extendBy(BoxVolume());
    QCOMPARE(box.getMin(), Pnt3f(1, -1, -1));
}

void tst_Values::invalidVolumesDoNotGrow()
{
    BoxVolume box(0, 0, 0, 1, 1, 1);
    box.setValid(false);
    box.extendBy(Pnt3f(9, 9, 9));
    QCOMPARE(box.getMax(), Pnt3f(1, 1, 1));
}

void tst_Values::infinityIsContagious()
{
    BoxVolume everything(0, 0, 0, 1, 1, 1);
    everything.setInfinite();
    DynamicVolume volume;
    volume.extendBy(everything);
    QVERIFY(volume.isInfinite());
    QVERIFY(volume.intersect(Pnt3f(100, 0, 0)));
}

void tst_Values::boxesIntersectWhereTheyTouch()
{
    const BoxVolume box(0, 0, 0, 1, 1, 1);
    QVERIFY(box.intersect(BoxVolume(1, 1, 1, 2, 2, 2)));
    QVERIFY(!box.intersect(BoxVolume(1.1f, 0, 0, 2, 2, 2)));
    QVERIFY(box.intersect(Pnt3f(1, 0, 0.5f)));
    QVERIFY(!box.intersect(BoxVolume()));
}

void tst_Values::aTransformedBoxContainsItsCorners()
{
    BoxVolume box(-1, -2, -3, 1, 2, 3);
    Matrix matrix;
    matrix.setTransform(Vec3f(10, 0, 0), Quaternion(Vec3f(0, 0, 1), Pi / 2));
    box.transform(matrix);
    QVERIFY(box.getMin().equals(Pnt3f(8, -1, -3), 1e-5f));
    QVERIFY(box.getMax().equals(Pnt3f(12, 1, 3), 1e-5f));
}

void tst_Values::boxComparisonIgnoresTheUpperZ()
{
    QVERIFY(BoxVolume(0, 0, 0, 1, 1, 1) == BoxVolume(0, 0, 0, 1, 1, 9));
    QVERIFY(BoxVolume(0, 0, 0, 1, 1, 1) != BoxVolume(0, 0, 0, 1, 2, 1));
}

void tst_Values::aDynamicVolumeNeverEqualsAnything()
{
    const DynamicVolume volume;
    QVERIFY(!(volume == volume));
    QVERIFY(volume != volume);
}

void tst_Values::aSphereAroundTwoSpheres()
{
    SphereVolume sphere(Pnt3f(0, 0, 0), 1);
    sphere.extendBy(SphereVolume(Pnt3f(4, 0, 0), 1));
    QCOMPARE(sphere.getCenter(), Pnt3f(2, 0, 0));
    QCOMPARE(sphere.getRadius(), 3.f);
    sphere.extendBy(Pnt3f(2, 1, 0));
    QCOMPARE(sphere.getRadius(), 3.f);
    sphere.extendBy(SphereVolume(Pnt3f(2, 0, 0), 9));
    QCOMPARE(sphere.getRadius(), 9.f);
}

void tst_Values::morphingKeepsTheContents()
{
    DynamicVolume volume;
    volume.setValue("-1 -1 -1 1 1 1");
    volume.morphToType(DynamicVolume::SPHERE_VOLUME);
    QCOMPARE(volume.getType(), DynamicVolume::SPHERE_VOLUME);
    QVERIFY(volume.intersect(Pnt3f(1, 1, 1)));
    volume.morphToType(DynamicVolume::BOX_VOLUME);
    QVERIFY(!volume.isEmpty());
    QVERIFY(volume.getMax().x() >= 1);
}

void tst_Values::theInstancePassesOnItsState()
{
    DynamicVolume volume;
    dynamic_cast<BoxVolume &>(volume.getInstance()).setBounds(2, 2, 2);
    QVERIFY(volume.isEmpty());
    volume.instanceChanged();
    QVERIFY(!volume.isEmpty());
    QCOMPARE(volume.getMax(), Pnt3f(1, 1, 1));
    volume.setValid(false);
    QVERIFY(!volume.getInstance().isValid());
}

void tst_Values::halfFloatsKeepWhatTheyCanHold()
{
    int different = 0;
    for (int exponent = -14; exponent <= 15; ++exponent) {
        for (int step = 0; step < 1024; ++step) {
            const Real32 value = std::ldexp(1 + step / 1024.f, exponent);
            different += Real32(Real16(value)) != value;
        }
    }
    QCOMPARE(different, 0);
}

void tst_Values::halfFloatsRoundAndOverflow()
{
    QCOMPARE(int(Real16(1.f).bits()), 0x3c00);
    QCOMPARE(int(Real16(-2.f).bits()), 0xc000);
    QCOMPARE(Real32(Real16(65504.f)), 65504.f);
    QVERIFY(std::isinf(Real32(Real16(70000.f))));
    QVERIFY(std::isnan(Real32(Real16(std::numeric_limits<Real32>::quiet_NaN()))));
    QCOMPARE(Real32(Real16(std::ldexp(1.f, -24))), std::ldexp(1.f, -24));
    QCOMPARE(Real32(Real16(2047.9f)), 2048.f);
}

void tst_Values::systemTimeAdvances()
{
    const Time before = getSystemTime();
    QTest::qSleep(2);
    QVERIFY(getSystemTime() > before);
}

void tst_Values::planesAreZeroUnlessGiven()
{
    QCOMPARE(Plane().getDistanceFromOrigin(), 0.f);
    QCOMPARE(Plane(Vec3f(0, 1, 0), 5).getNormal(), Vec3f(0, 1, 0));
}

QTEST_APPLESS_MAIN(tst_Values)
#include "tst_values.moc"
