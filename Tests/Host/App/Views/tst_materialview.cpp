#include "kavoDragPayload.h"
#include "kavoTestLoad.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoHostLists.h"
#include "Views/kavoListView.h"
#include "Views/kavoMaterialSwatch.h"
#include "Views/kavoSwatchCache.h"
#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoDragFormats.h>
#include <kavoMessage.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace kavoTestScene;

namespace {

osg::MaterialPtr shown;

void rememberMaterial(kavoMessage &message)
{
    shown = boost::any_cast<osg::MaterialPtr>(message.get("material"));
}

osg::NodePtr makeLibraryNode(const char *name, const osg::MaterialPtr &material)
{
    const auto group = osg::MaterialGroup::create();
    group->setMaterial(material);
    return makeNode(name, group, kavoScenegraph::getRoot());
}

osg::Color4f color(float red, float green, float blue)
{
    osg::Color4f result;
    result.setValuesRGBA(red, green, blue, 1);
    return result;
}

} // namespace

class tst_MaterialView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const kavoNodePtr root = makeGroup("root");
        kavoTestLoad::show(root);
        m_paint = makeMaterial();
        m_paintNode = makeLibraryNode("paint", m_paint);
        m_glassNode = makeLibraryNode("glass", makeMaterial());
        m_emptyNode = makeLibraryNode("empty", osg::NullFC);
        m_scene = std::make_unique<kavoOpenScene>();
        m_view = std::make_unique<kavoListView>(kavoHostLists::materials(*m_scene), *m_scene);
        m_scene->drainChanges();
    }

    void cleanup()
    {
        m_view.reset();
        m_scene.reset();
        kavoTestLoad::show(osg::NullFC);
    }

    void everyMaterialStandsUnderTheNodeThatHoldsIt()
    {
        const QAbstractItemModelTester tester(
            m_view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(m_view->model()->rowCount(), 3);
        QCOMPARE(row(0).data().toString(), QString("paint"));
        QCOMPARE(m_view->model()->rowCount(row(0)), 1);
        QCOMPARE(materialRow(0).data().toString(), QString("ChunkMaterial"));
        QCOMPARE(m_view->model()->rowCount(row(2)), 0);
        QVERIFY(m_view->isExpanded(row(0)));
    }

    void theTruckShowsItsFourMaterials()
    {
        kavoTestLoad::open("glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");
        QCOMPARE(m_view->model()->rowCount(), 4);
        QCOMPARE(materialRow(0).data().toString(), QString("Effect-wheels"));
    }

    void theSwatchShowsTheColour()
    {
        paint(color(1, 0, 0));
        const QColor red = center(swatch(0));
        QVERIFY(red.red() > 150 && red.green() < 100 && red.blue() < 100);
    }

    void anEditRendersTheSwatchAnew()
    {
        paint(color(1, 0, 0));
        swatch(0);
        QSignalSpy changed(m_view->model(), &QAbstractItemModel::dataChanged);
        paint(color(0, 0, 1));
        QVERIFY(changed.count() > 0);
        QVERIFY(center(swatch(0)).blue() > 150);
    }

    void anEditRendersTheSwatchOfEveryNodeThatSharesTheMaterial()
    {
        makeLibraryNode("paint again", m_paint);
        osg::endEditCP(kavoScenegraph::getRoot(), osg::Node::ChildrenFieldMask);
        QTRY_COMPARE(m_view->model()->rowCount(), 4);
        swatch(0);
        QSignalSpy changed(m_view->model(), &QAbstractItemModel::dataChanged);
        paint(color(0, 0, 1));
        QSet<QModelIndex> told;
        for (const QList<QVariant> &arguments : qAsConst(changed))
            told << arguments.first().toModelIndex();
        QVERIFY(told.contains(materialRow(0)) && told.contains(materialRow(3)));
    }

    void updateMatRenderRendersAnewInTheNextRound()
    {
        paint(color(1, 0, 0));
        swatch(0);
        chunk()->setDiffuse(color(0, 1, 0)); // without an entry in the change list
        kavoMessage message;
        kavoController::call(kavoCallNames::updateMatRender, message, 0);
        QVERIFY(center(swatch(0)).red() > 150);
        QTRY_VERIFY(center(swatch(0)).green() > 150);
    }

    void transparentMaterialsLetTheGroundThrough()
    {
        kavoMaterialLook look;
        look.diffuse = QVector3D(0, 0, 0);
        look.opacity = 0.1f;
        QVERIFY(center(kavoMaterialSwatch(look, 32).render()).value() > 100);
    }

    void theSwatchIsRoundOnNothing()
    {
        const QImage image = kavoMaterialSwatch(kavoMaterialLook(), 32).render();
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(16, 16)), 255);
    }

    void simpleMaterialsHaveALookToo()
    {
        const auto material = osg::SimpleMaterial::create();
        const kavoNodePtr holder(makeLibraryNode("simple", material));
        osg::Color3f green;
        green.setValuesRGB(0, 1, 0);
        material->setDiffuse(green);
        material->setTransparency(0.25f);
        const kavoMaterialLook look = kavoMaterialLook::of(material);
        QCOMPARE(look.diffuse, QVector3D(0, 1, 0));
        QCOMPARE(look.opacity, 0.75f);
    }

    void aReplacedMaterialIsShown()
    {
        const auto group = osg::MaterialGroupPtr::dcast(m_emptyNode->getCore());
        osg::beginEditCP(group, osg::MaterialGroup::MaterialFieldMask);
        group->setMaterial(m_paint);
        osg::endEditCP(group, osg::MaterialGroup::MaterialFieldMask);
        m_scene->drainChanges();
        QCOMPARE(m_view->model()->rowCount(row(2)), 1);
    }

    void aDeletedLibraryNodeIsGone()
    {
        const osg::NodePtr root = kavoScenegraph::getRoot();
        root->subChild(m_glassNode);
        osg::endEditCP(root, osg::Node::ChildrenFieldMask);
        m_scene->drainChanges();
        QCOMPARE(m_view->model()->rowCount(), 2);
    }

    void aDragHasTwoIdsAnItem()
    {
        const QVector<qint32> expected { id(m_paintNode), id(m_paint) };
        QCOMPARE(kavoDragPayload::ids(*m_view, { row(0), row(0, 1), row(0, 2) }), expected);
        QCOMPARE(kavoDragPayload::ids(*m_view, { materialRow(0) }), expected);
        QCOMPARE(kavoDragPayload::ids(*m_view, { row(0), materialRow(0) }), expected);
        QCOMPARE(m_view->model()->mimeTypes(), QStringList { kavoDragFormats::materials });
    }

    void severalMaterialsGoInOnePayload()
    {
        const QVector<qint32> ids = kavoDragPayload::ids(*m_view, { row(0), row(1) });
        QCOMPARE(ids.size(), 4);
        QCOMPARE(ids[2], id(m_glassNode));
    }

    void aNodeWithoutMaterialDragsNoneAsSecondId()
    {
        const QVector<qint32> expected { id(m_emptyNode), 0 };
        QCOMPARE(kavoDragPayload::ids(*m_view, { row(2) }), expected);
    }

    void enterShowsTheMaterialInTheEditor()
    {
        QCOMPARE(activate([this] { QTest::keyClick(m_view.get(), Qt::Key_Return); }), m_paint);
    }

    void aDoubleClickShowsTheMaterialInTheEditor()
    {
        QCOMPARE(activate([this] {
            const QPoint center = m_view->visualRect(materialRow(0)).center();
            QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, center);
            QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, center);
        }),
            m_paint);
    }

private:
    static qint32 id(const osg::FieldContainerPtr &container)
    {
        return qint32(kavoContainers::id(container));
    }

    QModelIndex row(int row, int column = 0) const { return m_view->model()->index(row, column); }

    QModelIndex materialRow(int of) const { return m_view->model()->index(0, 0, row(of)); }

    QImage swatch(int of) const
    {
        const auto icon = materialRow(of).data(Qt::DecorationRole).value<QIcon>();
        return icon.pixmap(kavoSwatchCache::size).toImage();
    }

    static QColor center(const QImage &image)
    {
        return image.pixelColor(image.width() / 2, image.height() / 2);
    }

    osg::MaterialChunkPtr chunk() const
    {
        return osg::MaterialChunkPtr::dcast(m_paint->find(osg::MaterialChunk::getClassType()));
    }

    void paint(const osg::Color4f &diffuse)
    {
        osg::beginEditCP(chunk(), osg::MaterialChunk::DiffuseFieldMask);
        chunk()->setDiffuse(diffuse);
        osg::endEditCP(chunk(), osg::MaterialChunk::DiffuseFieldMask);
        m_scene->drainChanges();
    }

    template <class Gesture> osg::MaterialPtr activate(Gesture gesture)
    {
        kavoController::addCB(kavoCallNames::updateNodeEditorByMaterial, rememberMaterial);
        shown = osg::NullFC;
        m_view->resize(300, 300);
        m_view->show();
        m_view->setCurrentIndex(materialRow(0));
        gesture();
        kavoController::subCB(kavoCallNames::updateNodeEditorByMaterial, rememberMaterial);
        return shown;
    }

    osg::ChunkMaterialPtr m_paint;
    osg::NodePtr m_paintNode, m_glassNode, m_emptyNode;
    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoListView> m_view;
};

KAVO_TEST_MAIN(tst_MaterialView)
#include "tst_materialview.moc"
