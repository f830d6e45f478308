#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGMatrix.h>

#include <QtTest>

using namespace osg;

/// Boxes, spheres, and volumes that are either.
class tst_Volumes : public QObject
{
    Q_OBJECT

private slots:
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
};

void tst_Volumes::volumesStartValidAndEmpty()
{
    QCOMPARE(int(BoxVolume().getState()), Volume::OSGVALID | Volume::OSGEMPTY);
    QCOMPARE(int(DynamicVolume().getState()), 3);
    QCOMPARE(BoxVolume().getMax(), Pnt3f());
    QVERIFY(!BoxVolume(0, 0, 0, 1, 1, 1).isEmpty());
}

void tst_Volumes::staticVolumesStayValid()
{
    DynamicVolume volume;
    volume.setStatic();
    volume.setValid(false);
    QVERIFY(volume.isValid());
    volume.setStatic(false);
    volume.setValid(false);
    QVERIFY(!volume.isValid());
}

void tst_Volumes::emptyingValidates()
{
    BoxVolume volume(0, 0, 0, 1, 1, 1);
    volume.setValid(false);
    volume.setEmpty();
    QVERIFY(volume.isValid());
    QVERIFY(volume.isEmpty());
}

void tst_Volumes::aBoxGrowsToWhatItIsExtendedBy()
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

void tst_Volumes::invalidVolumesDoNotGrow()
{
    BoxVolume box(0, 0, 0, 1, 1, 1);
    box.setValid(false);
    box.extendBy(Pnt3f(9, 9, 9));
    QCOMPARE(box.getMax(), Pnt3f(1, 1, 1));
}

void tst_Volumes::infinityIsContagious()
{
    BoxVolume everything(0, 0, 0, 1, 1, 1);
    everything.setInfinite();
    DynamicVolume volume;
    volume.extendBy(everything);
    QVERIFY(volume.isInfinite());
    QVERIFY(volume.intersect(Pnt3f(100, 0, 0)));
}

void tst_Volumes::boxesIntersectWhereTheyTouch()
{
    const BoxVolume box(0, 0, 0, 1, 1, 1);
    QVERIFY(box.intersect(BoxVolume(1, 1, 1, 2, 2, 2)));
    QVERIFY(!box.intersect(BoxVolume(1.1f, 0, 0, 2, 2, 2)));
    QVERIFY(box.intersect(Pnt3f(1, 0, 0.5f)));
    QVERIFY(!box.intersect(BoxVolume()));
}

void tst_Volumes::aTransformedBoxContainsItsCorners()
{
    BoxVolume box(-1, -2, -3, 1, 2, 3);
    Matrix matrix;
    matrix.setTransform(Vec3f(10, 0, 0), Quaternion(Vec3f(0, 0, 1), Pi / 2));
    box.transform(matrix);
    QVERIFY(box.getMin().equals(Pnt3f(8, -1, -3), 1e-5f));
    QVERIFY(box.getMax().equals(Pnt3f(12, 1, 3), 1e-5f));
}

void tst_Volumes::boxComparisonIgnoresTheUpperZ()
{
    QVERIFY(BoxVolume(0, 0, 0, 1, 1, 1) == BoxVolume(0, 0, 0, 1, 1, 9));
    QVERIFY(BoxVolume(0, 0, 0, 1, 1, 1) != BoxVolume(0, 0, 0, 1, 2, 1));
}

void tst_Volumes::aDynamicVolumeNeverEqualsAnything()
{
    const DynamicVolume volume;
    QVERIFY(!(volume == volume));
    QVERIFY(volume != volume);
}

void tst_Volumes::aSphereAroundTwoSpheres()
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

void tst_Volumes::morphingKeepsTheContents()
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

void tst_Volumes::theInstancePassesOnItsState()
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

QTEST_APPLESS_MAIN(tst_Volumes)
#include "tst_volumes.moc"
