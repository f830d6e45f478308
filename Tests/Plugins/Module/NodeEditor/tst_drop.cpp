#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <OSGDerivedContainer.h>
#include <kavoConsoleCapture.h>
#include <kavoDragFormats.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGPointLight.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QtTest>

using namespace kavoDragFormats;
using namespace kavoTreeRows;

namespace {

struct DerivedMaterialGroup
{
    typedef osg::MaterialGroup Base;
    typedef osg::MaterialGroupPtr BasePtr;
    static constexpr const char *type = "DerivedMaterialGroup";
    static constexpr const char *parent = "MaterialGroup";
    static constexpr const char *group = "MaterialGroup";
};

} // namespace

class tst_Drop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void entryOfAKnownFormatIsAccepted_data();
    void entryOfAKnownFormatIsAccepted();
    void entryOfUnknownFormatsIsNotAccepted();
    void aDropIsNotAnswered();
    void aMaterialIsShownWithoutAName();
    void aGroupDerivedFromMaterialGroupsShowsItsMaterial();
    void aLightIsShownWithItsName();
    void anUnnamedLightBearsTheTypeOfItsCore();
    void aCameraIsShownWithItsName();
    void theFirstIdThatIsANodeIsTheCamera();
    void aCameraNeedsNoCore();
    void twoMaterialsShowNothing();
    void twoLightsShowNothing();
    void aMaterialNodeNeedsAMaterialGroup();
    void aMaterialNodeNeedsACore();
    void aLightNeedsACore();
    void aGroupWithoutMaterialEmptiesTheEditor();
    void theCameraWinsOverTheMaterial();
    void theLightWinsOverTheMaterial();
    void malformedPayloadsChangeNothing_data();
    void malformedPayloadsChangeNothing();
    void anIncompleteItemIsNoItem_data();
    void anIncompleteItemIsNoItem();
    void bindingsFollowTheDrop();
    void anExceptionInADropIsLogged();

private:
    static qint32 id(const osg::FieldContainerPtr &container);
    static qint32 idOfADestroyedNode();
    void deliver(QEvent &event);
    void drop(const QString &format, const QByteArray &bytes);
    void drop(const QMimeData &data);
    QString title() const;

    kavoFCEditorWidget *m_editor = nullptr;
    kavoNodePtr m_shown;
    kavoNodePtr m_materialNode;
    kavoNodePtr m_light;
    kavoNodePtr m_bare;
    osg::MaterialPtr m_material;
};

qint32 tst_Drop::id(const osg::FieldContainerPtr &container)
{
    return qint32(container.getFieldContainerId());
}

qint32 tst_Drop::idOfADestroyedNode()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Dead"));
    return id(osg::NodePtr(node));
}

void tst_Drop::initTestCase()
{
    m_material = kavoTestScene::makeMaterial();
    const osg::MaterialGroupPtr group = osg::MaterialGroup::create();
    group->setMaterial(m_material);
    m_materialNode = kavoTestScene::makeNode("Paint", group);
    m_light = kavoTestScene::makeNode("Lamp", osg::PointLight::create());
    m_bare = kavoTestScene::makeNode("Bare", osg::NullFC);
    m_shown = kavoTestScene::makeGroup("Shown");
}

void tst_Drop::cleanupTestCase()
{
    for (kavoNodePtr *node : { &m_materialNode, &m_light, &m_bare, &m_shown })
        *node = kavoNodePtr();
}

void tst_Drop::init()
{
    m_editor = new kavoFCEditorWidget(nullptr, nullptr);
    m_editor->setFC("Shown", osg::NodePtr(m_shown));
}

void tst_Drop::cleanup()
{
    delete m_editor;
}

// Bypasses the application, which expects a real drag for such events.
void tst_Drop::deliver(QEvent &event)
{
    static_cast<QObject *>(m_editor)->event(&event);
}

void tst_Drop::drop(const QMimeData &data)
{
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    deliver(event);
}

void tst_Drop::drop(const QString &format, const QByteArray &bytes)
{
    QMimeData data;
    data.setData(format, bytes);
    drop(data);
}

QString tst_Drop::title() const
{
    return m_editor->properties().isEmpty() ? QString() : top(*m_editor)->propertyName();
}

void tst_Drop::entryOfAKnownFormatIsAccepted_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("material") << "application/kavo-mattree-item";
    QTest::newRow("light") << "application/kavo-lighttree-items";
    QTest::newRow("camera") << "application/kavo-camera-item";
}

void tst_Drop::entryOfAKnownFormatIsAccepted()
{
    QFETCH(QString, format);
    QMimeData data;
    data.setData(format, QByteArray());
    QDragEnterEvent event(
        QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    deliver(event);
    QVERIFY(event.isAccepted());
    QCOMPARE(event.dropAction(), event.proposedAction());
}

void tst_Drop::entryOfUnknownFormatsIsNotAccepted()
{
    QMimeData data;
    data.setText("text");
    data.setData("application/kavo-mattree-items", QByteArray());
    QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    deliver(event);
    QVERIFY(!event.isAccepted());
}

void tst_Drop::aDropIsNotAnswered()
{
    QMimeData data;
    data.setData(cameras, payload({ id(osg::NodePtr(m_light)) }));
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    deliver(event);
    QVERIFY(!event.isAccepted());
}

void tst_Drop::aMaterialIsShownWithoutAName()
{
    drop(materials, payload({ id(osg::NodePtr(m_materialNode)), id(m_material) }));
    QCOMPARE(title(), titleOf("", m_material));
    QVERIFY(isOpen(*m_editor, top(*m_editor)));
}

void tst_Drop::aGroupDerivedFromMaterialGroupsShowsItsMaterial()
{
    const auto group = osg::DerivedContainer<DerivedMaterialGroup>::create();
    group->setMaterial(m_material);
    const kavoNodePtr node(kavoTestScene::makeNode("Paint", group));
    drop(materials, payload({ id(osg::NodePtr(node)), id(m_material) }));
    QCOMPARE(title(), titleOf("", m_material));
}

void tst_Drop::aLightIsShownWithItsName()
{
    drop(lights, payload({ id(osg::NodePtr(m_light)), 0 }));
    QCOMPARE(title(), titleOf("Lamp", osg::NodePtr(m_light)));
}

void tst_Drop::anUnnamedLightBearsTheTypeOfItsCore()
{
    const kavoNodePtr light(kavoTestScene::makeNode(nullptr, osg::PointLight::create()));
    drop(lights, payload({ id(osg::NodePtr(light)), 0 }));
    QCOMPARE(title(), titleOf("PointLight", osg::NodePtr(light)));
}

void tst_Drop::aCameraIsShownWithItsName()
{
    drop(cameras, payload({ id(osg::NodePtr(m_light)) }));
    QCOMPARE(title(), titleOf("Lamp", osg::NodePtr(m_light)));
}

void tst_Drop::theFirstIdThatIsANodeIsTheCamera()
{
    const qint32 stale = idOfADestroyedNode();
    QVERIFY(osg::FieldContainerFactory::the()->getContainer(osg::UInt32(stale)) == osg::NullFC);
    drop(cameras,
        payload({ stale, -1, 0x7FFFFFFF, 0, id(m_material), id(osg::NodePtr(m_light)),
            id(osg::NodePtr(m_materialNode)) }));
    QCOMPARE(title(), titleOf("Lamp", osg::NodePtr(m_light)));
}

void tst_Drop::aCameraNeedsNoCore()
{
    drop(cameras, payload({ id(osg::NodePtr(m_bare)) }));
    QCOMPARE(title(), titleOf("Bare", osg::NodePtr(m_bare)));
}

void tst_Drop::twoMaterialsShowNothing()
{
    const qint32 node = id(osg::NodePtr(m_materialNode));
    drop(materials, payload({ node, id(m_material), node, id(m_material) }));
    QCOMPARE(title(), titleOf("Shown", osg::NodePtr(m_shown)));
}

void tst_Drop::twoLightsShowNothing()
{
    const qint32 node = id(osg::NodePtr(m_light));
    drop(lights, payload({ node, 0, node, 0 }));
    QCOMPARE(title(), titleOf("Shown", osg::NodePtr(m_shown)));
}

void tst_Drop::aMaterialNodeNeedsAMaterialGroup()
{
    drop(materials, payload({ id(osg::NodePtr(m_light)), id(m_material) }));
    QCOMPARE(title(), titleOf("Shown", osg::NodePtr(m_shown)));
}

void tst_Drop::aMaterialNodeNeedsACore()
{
    drop(materials, payload({ id(osg::NodePtr(m_bare)), id(m_material) }));
    QCOMPARE(title(), titleOf("Shown", osg::NodePtr(m_shown)));
}

void tst_Drop::aLightNeedsACore()
{
    drop(lights, payload({ id(osg::NodePtr(m_bare)), 0 }));
    QCOMPARE(title(), titleOf("Shown", osg::NodePtr(m_shown)));
}

void tst_Drop::aGroupWithoutMaterialEmptiesTheEditor()
{
    const kavoNodePtr node(kavoTestScene::makeNode("Bare", osg::MaterialGroup::create()));
    drop(materials, payload({ id(osg::NodePtr(node)), 0 }));
    QCOMPARE(title(), QString());
}

void tst_Drop::theCameraWinsOverTheMaterial()
{
    QMimeData data;
    data.setData(cameras, payload({ id(osg::NodePtr(m_bare)) }));
    data.setData(materials, payload({ id(osg::NodePtr(m_materialNode)), id(m_material) }));
    drop(data);
    QCOMPARE(title(), titleOf("Bare", osg::NodePtr(m_bare)));
}

void tst_Drop::theLightWinsOverTheMaterial()
{
    QMimeData data;
    data.setData(lights, payload({ id(osg::NodePtr(m_light)), 0 }));
    data.setData(materials, payload({ id(osg::NodePtr(m_materialNode)), id(m_material) }));
    drop(data);
    QCOMPARE(title(), titleOf("Lamp", osg::NodePtr(m_light)));
}

void tst_Drop::malformedPayloadsChangeNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const int size : { 0, 1, 3, 7 })
        QTest::addRow("%d bytes", size) << QByteArray(size, '\x01');
    const qint32 deadId = idOfADestroyedNode();
    QTest::newRow("dead ids") << payload({ deadId, deadId });
    QTest::newRow("no nodes") << payload({ id(m_material), id(osg::NodePtr(m_light)->getCore()) });
    QTest::newRow("past the store") << payload({ 0x7FFFFFFF, -1 });
    QTest::newRow("null") << payload({ 0, 0 });
    QTest::newRow("100,000 ids") << payload(QVector<qint32>(100000, deadId));
}

void tst_Drop::malformedPayloadsChangeNothing()
{
    QFETCH(QByteArray, bytes);
    for (const char *format : { materials, lights, cameras }) {
        drop(format, bytes);
        QCOMPARE(title(), titleOf("Shown", osg::NodePtr(m_shown)));
    }
}

void tst_Drop::anIncompleteItemIsNoItem_data()
{
    const qint32 node = id(osg::NodePtr(m_light));
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("shows");
    QTest::newRow("one id") << payload({ node }) << false;
    QTest::newRow("one id and a half") << payload({ node }) + QByteArray(2, '\0') << false;
    QTest::newRow("three ids") << payload({ node, 0, node }) << true;
    QTest::newRow("two ids and a byte") << payload({ node, 0 }) + "x" << true;
}

void tst_Drop::anIncompleteItemIsNoItem()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, shows);
    drop(lights, bytes);
    QCOMPARE(title(),
        shows ? titleOf("Lamp", osg::NodePtr(m_light)) : titleOf("Shown", osg::NodePtr(m_shown)));
}

void tst_Drop::bindingsFollowTheDrop()
{
    drop(materials, payload({ id(osg::NodePtr(m_materialNode)), id(m_material) }));
    setValue(*m_editor, "sortKey", 7);
    QCOMPARE(m_material->getSortKey(), 7);
}

void tst_Drop::anExceptionInADropIsLogged()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("Root"));
    osg::NodePtr(node)->addAttachment(osg::FieldSampler::create());
    kavoConsoleCapture errors(kavoConsoleCapture::StandardError);
    osg::FieldSampler::accessThrows = true;
    drop(cameras, payload({ id(osg::NodePtr(node)) }));
    osg::FieldSampler::accessThrows = false;
    QVERIFY(errors.text().contains("Showing what was dropped failed with an unknown exception"));
}

KAVO_TEST_MAIN(tst_Drop)
#include "tst_drop.moc"
