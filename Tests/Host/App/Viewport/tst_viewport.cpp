#include "kavoTestLoad.h"

#include "Scene/kavoCameraRegistry.h"
#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Viewport/kavoViewport.h"
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMaterialGroup.h>

#include <QtTest>

namespace {

/// The number of pixels that differ between two pictures of the same size.
int difference(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y);
    return count;
}

} // namespace

class tst_Viewport : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_scene = std::make_unique<kavoOpenScene>();
        m_view = std::make_unique<kavoViewport>(*m_scene);
        m_view->resize(400, 300);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
        m_empty = m_view->grabFramebuffer();
        kavoTestLoad::open("glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");
        m_scene->drainChanges();
    }

    void cleanup()
    {
        m_view.reset();
        m_scene.reset();
        kavoTestLoad::show(osg::NullFC);
    }

    void thereIsOneWhereThereIsOpenGL()
    {
        QVERIFY(kavoViewport::isAvailable());
        const std::unique_ptr<QWidget> view(kavoViewport::create(*m_scene));
        QVERIFY(qobject_cast<kavoViewport *>(view.get()));
    }

    void theSceneIsDrawnInItsTexturesColours()
    {
        const QImage picture = m_view->grabFramebuffer();
        QVERIFY(difference(picture, m_empty) > 5000);
        QSet<QRgb> colors;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                colors.insert(picture.pixel(x, y));
        QVERIFY(colors.size() > 200);
    }

    void aClickSelectsTheNodeUnderThePointer()
    {
        const QPoint center = m_view->rect().center();
        const osg::NodePtr node = m_view->nodeAt(center);
        QVERIFY(node != osg::NullFC);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, center);
        QVERIFY(osg::NodePtr(kavoScenegraph::getSelectedNode()) == node);
    }

    void aClickBesideTheSceneSelectsNothing()
    {
        kavoScenegraph::setSelectedNode(kavoTestLoad::find("ROOT"));
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, { 2, 2 });
        QVERIFY(kavoScenegraph::getSelectedNode() == osg::NullFC);
    }

    void theSelectedNodeIsOutlined()
    {
        const QImage before = m_view->grabFramebuffer();
        kavoScenegraph::setSelectedNode(kavoTestLoad::find("Geometry-mesh002Node"));
        const QImage after = m_view->grabFramebuffer();
        const int outline = difference(before, after);
        QVERIFY2(outline > 100 && outline < 20000, qPrintable(QString::number(outline)));
    }

    void draggingTurnsThePictureAndSelectsNothing()
    {
        const QImage before = m_view->grabFramebuffer();
        QTest::mousePress(m_view.get(), Qt::LeftButton, {}, { 200, 150 });
        QTest::mouseMove(m_view.get(), { 260, 150 });
        QMouseEvent move(QEvent::MouseMove, QPointF(290, 170), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(m_view.get(), &move);
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, { 290, 170 });
        QVERIFY(difference(before, m_view->grabFramebuffer()) > 1000);
        QVERIFY(kavoScenegraph::getSelectedNode() == osg::NullFC);
    }

    void theWheelComesCloserAndFFitsAgain()
    {
        const QImage before = m_view->grabFramebuffer();
        QWheelEvent wheel(QPointF(200, 150), m_view->mapToGlobal(QPoint(200, 150)), {}, { 0, 240 },
            {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &wheel);
        QVERIFY(difference(before, m_view->grabFramebuffer()) > 1000);
        QTest::keyClick(m_view.get(), Qt::Key_F);
        QCOMPARE(difference(before, m_view->grabFramebuffer()), 0);
    }

    void anEditedMaterialShows()
    {
        const QImage before = m_view->grabFramebuffer();
        const auto group
            = osg::MaterialGroupPtr::dcast(kavoTestLoad::find("Effect-truck")->getCore());
        const auto material = osg::ChunkMaterialPtr::dcast(group->getMaterial());
        const auto chunk
            = osg::MaterialChunkPtr::dcast(material->find(osg::MaterialChunk::getClassType()));
        osg::Color4f red;
        red.setValuesRGBA(1, 0, 0, 1);
        chunk->setDiffuse(red);
        osg::endEditCP(chunk, osg::MaterialChunk::DiffuseFieldMask);
        m_scene->drainChanges();
        QVERIFY(difference(before, m_view->grabFramebuffer()) > 1000);
    }

    void anotherCameraShowsAnotherPicture()
    {
        kavoTestLoad::open("FBX/spider.fbx");
        m_scene->drainChanges();
        const QImage before = m_view->grabFramebuffer();
        m_view->lookThroughActiveCamera();
        QVERIFY(difference(before, m_view->grabFramebuffer()) > 1000);
    }

    void aDeletedSceneLeavesTheBackground()
    {
        kavoTestLoad::show(osg::NullFC);
        QCOMPARE(difference(m_empty, m_view->grabFramebuffer()), 0);
    }

private:
    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoViewport> m_view;
    QImage m_empty;
};

KAVO_TEST_MAIN(tst_Viewport)
#include "tst_viewport.moc"
