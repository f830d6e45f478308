#include "kavoTestLoad.h"

#include "Scene/kavoContainers.h"
#include "Viewport/kavoGeometryCache.h"
#include "Viewport/kavoOrbitCamera.h"
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

using namespace kavoTestScene;

namespace {

/// A primitive whose vertices lie along x, with y alternately 0 and 1.
osg::GeometryPtr makeCorners(osg::UInt8 type, osg::UInt32 count)
{
    auto types = osg::GeoPTypesUI8::create();
    auto lengths = osg::GeoPLengthsUI32::create();
    auto positions = osg::GeoPositions3f::create();
    types->push_back(type);
    lengths->push_back(count);
    for (osg::UInt32 i = 0; i < count; ++i)
        positions->push_back(osg::Pnt3f(float(i / 2), float(i % 2), 0));
    auto geometry = osg::Geometry::create();
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(positions);
    return geometry;
}

osg::TransformPtr makeShift(float z)
{
    auto transform = osg::Transform::create();
    osg::Matrix matrix;
    matrix.setTranslate(0, 0, z);
    transform->setMatrix(matrix);
    return transform;
}

} // namespace

class tst_GeometryCache : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const kavoNodePtr root = makeGroup("root");
        kavoTestLoad::show(root);
    }

    void cleanup() { kavoTestLoad::show(osg::NullFC); }

    void everyPrimitiveTypeBecomesCorners_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("triangles");
        QTest::addColumn<int>("lines");
        QTest::newRow("points") << 0 << 5 << 0 << 0;
        QTest::newRow("lines, one corner left over") << 1 << 5 << 0 << 2;
        QTest::newRow("line loop") << 2 << 5 << 0 << 5;
        QTest::newRow("line strip") << 3 << 5 << 0 << 4;
        QTest::newRow("triangles, two corners left over") << 4 << 8 << 2 << 0;
        QTest::newRow("triangle strip") << 5 << 6 << 4 << 0;
        QTest::newRow("triangle fan") << 6 << 6 << 4 << 0;
        QTest::newRow("quads") << 7 << 8 << 4 << 0;
        QTest::newRow("quad strip") << 8 << 6 << 4 << 0;
        QTest::newRow("polygon") << 9 << 5 << 3 << 0;
        QTest::newRow("an unknown type") << 77 << 5 << 0 << 0;
    }

    void everyPrimitiveTypeBecomesCorners()
    {
        QFETCH(int, type);
        QFETCH(int, count);
        QFETCH(int, triangles);
        QFETCH(int, lines);
        const auto geometry = makeCorners(osg::UInt8(type), osg::UInt32(count));
        const kavoNodePtr holder(makeNode("holder", geometry));
        const kavoTriangleSoup soup = kavoTriangleSoup::of(geometry);
        QCOMPARE(int(soup.triangles.size()), 3 * triangles);
        QCOMPARE(int(soup.lines.size()), 2 * lines);
        QCOMPARE(int(soup.points.size()), type == 0 ? count : 0);
    }

    void missingNormalsAreMadeOfTheTriangles()
    {
        const auto geometry = makeCorners(4, 3);
        const kavoNodePtr holder(makeNode("holder", geometry));
        const kavoTriangleSoup soup = kavoTriangleSoup::of(geometry);
        QCOMPARE(soup.triangles[0].normal, QVector3D(0, 0, -1));
    }

    void aMappingOfSeveralIndicesIsFollowed()
    {
        const auto geometry = makeCorners(0, 1);
        const kavoNodePtr holder(makeNode("holder", geometry));
        geometry->getPositions()->push_back(osg::Pnt3f(7, 0, 0));
        auto normals = osg::GeoNormals3f::create();
        normals->push_back(osg::Vec3f(0, 1, 0));
        geometry->setNormals(normals);
        auto indices = osg::GeoIndicesUI32::create();
        indices->push_back(0); // normal
        indices->push_back(1); // position
        geometry->setIndices(indices);
        geometry->getMFIndexMapping()->push_back(osg::Geometry::MapNormal);
        geometry->getMFIndexMapping()->push_back(osg::Geometry::MapPosition);
        const kavoTriangleSoup soup = kavoTriangleSoup::of(geometry);
        QCOMPARE(soup.points[0].position, QVector3D(7, 0, 0));
        QCOMPARE(soup.points[0].normal, QVector3D(0, 1, 0));
    }

    void indicesBeyondThePropertiesAreHarmless()
    {
        const auto geometry = makeCorners(0, 3);
        const kavoNodePtr holder(makeNode("holder", geometry));
        auto indices = osg::GeoIndicesUI32::create();
        for (int i = 0; i < 3; ++i)
            indices->push_back(4711);
        geometry->setIndices(indices);
        QCOMPARE(int(kavoTriangleSoup::of(geometry).points.size()), 3);
    }

    void lengthsBeyondThePropertiesAreHarmless()
    {
        const auto geometry = makeCorners(0, 3);
        const kavoNodePtr holder(makeNode("holder", geometry));
        geometry->getLengths()->setValue(4294967295u, 0);
        QCOMPARE(int(kavoTriangleSoup::of(geometry).points.size()), 3);
        auto indices = osg::GeoIndicesUI32::create();
        indices->push_back(1);
        geometry->setIndices(indices);
        QCOMPARE(int(kavoTriangleSoup::of(geometry).points.size()), 1);
    }

    void oneMissingNormalMakesTheTriangleFlat()
    {
        const auto geometry = makeCorners(4, 3);
        const kavoNodePtr holder(makeNode("holder", geometry));
        auto normals = osg::GeoNormals3f::create();
        normals->push_back(osg::Vec3f(0, 1, 0));
        geometry->setNormals(normals);
        const kavoTriangleSoup soup = kavoTriangleSoup::of(geometry);
        for (const auto &vertex : soup.triangles)
            QCOMPARE(vertex.normal, QVector3D(0, 0, -1));
    }

    void aGeometryWithoutPropertiesIsEmpty()
    {
        const auto geometry = osg::Geometry::create();
        const kavoNodePtr holder(makeNode("holder", geometry));
        QVERIFY(kavoTriangleSoup::of(geometry).isEmpty());
    }

    void itemsStandWhereTheirTransformsPutThem()
    {
        const osg::NodePtr moved = makeNode("moved", makeShift(2), kavoScenegraph::getRoot());
        makeNode("triangle", makeCorners(4, 3), makeNode("again", makeShift(3), moved));
        kavoGeometryCache geometry;
        QCOMPARE(int(geometry.items().size()), 1);
        QCOMPARE(geometry.items()[0].toWorld.map(QVector3D()), QVector3D(0, 0, 5));
        QCOMPARE(geometry.bounds().first.z(), 5.0f);
    }

    void aMaterialGroupCountsForAllBelow()
    {
        auto group = osg::MaterialGroup::create();
        group->setMaterial(makeMaterial());
        const osg::NodePtr node = makeNode("group", group, kavoScenegraph::getRoot());
        makeNode("triangle", makeCorners(4, 3), node);
        kavoGeometryCache geometry;
        QCOMPARE(geometry.items()[0].material, kavoContainers::id(group->getMaterial()));
    }

    void nodesWithoutTraversalMaskAreNotShown()
    {
        makeNode("triangle", makeCorners(4, 3), kavoScenegraph::getRoot())->setTravMask(0);
        kavoGeometryCache geometry;
        QVERIFY(geometry.items().empty());
        QCOMPARE(geometry.bounds().second, 0.0f);
    }

    void theNearestNodeIsPicked()
    {
        const osg::NodePtr root = kavoScenegraph::getRoot();
        makeNode("far", makeCorners(4, 3), makeNode("back", makeShift(-5), root));
        const osg::NodePtr near = makeNode("near", makeCorners(4, 3), root);
        kavoGeometryCache geometry;
        QCOMPARE(geometry.pick({ 0.1f, 0.5f, 9 }, { 0, 0, -1 }), kavoContainers::id(near));
        QCOMPARE(geometry.pick({ 0.1f, 0.5f, 9 }, { 0, 0, 1 }), 0u);
        QCOMPARE(geometry.pick({ 5, 5, 9 }, { 0, 0, -1 }), 0u);
    }

    void anOrbitCameraSeesAllOfWhatItFits_data()
    {
        QTest::addColumn<QSize>("window");
        QTest::newRow("wide") << QSize(400, 300);
        QTest::newRow("high") << QSize(200, 600);
    }

    void anOrbitCameraSeesAllOfWhatItFits()
    {
        QFETCH(QSize, window);
        kavoOrbitCamera camera;
        camera.fit({ 10, 20, 30 }, 5);
        const QMatrix4x4 toClip = camera.projection(window) * camera.view();
        QVERIFY((toClip.map(QVector3D(10, 20, 30)) * QVector3D(1, 1, 0)).length() < 1e-3f);
        for (const QVector3D &axis : { QVector3D(5, 0, 0), QVector3D(0, 5, 0), QVector3D(0, 0, 5) })
            for (float sign : { -1.0f, 1.0f }) {
                const QVector3D seen = toClip.map(QVector3D(10, 20, 30) + axis * sign);
                QVERIFY(qAbs(seen.x()) <= 1 && qAbs(seen.y()) <= 1 && qAbs(seen.z()) <= 1);
            }
    }

    void turningKeepsTheDistanceAndPanningTheDirection()
    {
        kavoOrbitCamera camera;
        camera.fit({}, 1);
        const float distance = camera.eye().length();
        camera.orbit({ 100, 50 });
        QVERIFY(qAbs(camera.eye().length() - distance) < 1e-4f);
        const QVector3D before = camera.eye();
        camera.pan({ 0, 150 }, { 400, 300 });
        QVERIFY((camera.eye() - before).length() > 0.5f);
        camera.zoom(0.5f);
        QVERIFY((camera.eye() - before).length() > 0);
    }

    void aPlacedCameraLooksAlongItsNegativeZ()
    {
        QMatrix4x4 place;
        place.translate(0, 0, 10);
        kavoOrbitCamera camera;
        camera.fit({}, 1);
        camera.place(place, 40);
        QVERIFY((camera.eye() - QVector3D(0, 0, 10)).length() < 1e-4f);
        const QVector3D ahead
            = (camera.projection({ 300, 300 }) * camera.view()).map(QVector3D(0, 0, 0));
        QVERIFY(qAbs(ahead.x()) < 1e-4f && qAbs(ahead.y()) < 1e-4f);
    }
};

KAVO_TEST_MAIN(tst_GeometryCache)
#include "tst_geometrycache.moc"
