#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGReal16.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGTime.h>
#include <OpenSG/OSGVector.h>

#include <QtTest>

#include <limits>

using namespace osg;

/// Vectors, points, colours, planes and single numbers.
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
    void coloursAreAddedAndMultipliedByComponents();
    void hueSaturationValueRoundTrips_data();
    void hueSaturationValueRoundTrips();
    void byteColoursReadRealsAndWrap();

    void halfFloatsKeepWhatTheyCanHold();
    void halfFloatsRoundAndOverflow();
    void systemTimeAdvances();
    void numbersHaveNeutralElementsAndLimits();
    void traitsWriteTheTextOfAValue();
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

void tst_Values::coloursAreAddedAndMultipliedByComponents()
{
    Color3f colour(0.25f, 0.5f, 1.f);
    colour += Color3f(0.25f, 0.f, 0.f);
    colour -= Color3f(0.f, 0.f, 0.5f);
    QCOMPARE(colour, Color3f(0.5f, 0.5f, 0.5f));
    colour *= Color3f(1.f, 2.f, 4.f);
    colour /= Color3f(1.f, 1.f, 2.f);
    QCOMPARE(colour, Color3f(0.5f, 1.f, 1.f));
    ((colour *= 4.f) /= 2.f) += 1.f;
    QCOMPARE(colour -= 0.5f, Color3f(1.5f, 2.5f, 2.5f));
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

void tst_Values::numbersHaveNeutralElementsAndLimits()
{
    QCOMPARE(TypeTraits<Int32>::getZeroElement(), 0);
    QCOMPARE(TypeTraits<Real32>::getOneElement(), 1.f);
    QCOMPARE(TypeTraits<UInt8>::getMax(), UInt8(255));
    QCOMPARE(TypeTraits<Int16>::getMin(), Int16(-32768));
    QCOMPARE(TypeTraits<BitVector>::One << 63, BitVector(0x8000000000000000));
}

void tst_Values::traitsWriteTheTextOfAValue()
{
    QCOMPARE(TypeTraits<Real32>::putToString(1.5f), std::string("1.500000e+00"));
    QCOMPARE(TypeTraits<Int8>::putToString(-5), std::string("-5"));
    QCOMPARE(TypeTraits<UInt32>::getFromString("0x1F"), UInt32(31));
    std::string text = "replaced";
    FieldDataTraits<std::string>::putToString("a\"b", text);
    QCOMPARE(text, std::string("\"a\"b\""));
    FieldDataTraits<Color3f>::putToString(Color3f(1.f, .5f, 0.f), text);
    QCOMPARE(text, std::string("1.000000e+00 5.000000e-01 0.000000e+00"));
}

void tst_Values::planesAreZeroUnlessGiven()
{
    QCOMPARE(Plane().getDistanceFromOrigin(), 0.f);
    QCOMPARE(Plane(Vec3f(0, 1, 0), 5).getNormal(), Vec3f(0, 1, 0));
}

QTEST_APPLESS_MAIN(tst_Values)
#include "tst_values.moc"
