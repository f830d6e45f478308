#include "kavoDragPayload.h"
#include "kavoTestLoad.h"

#include "Scene/kavoCameraRegistry.h"
#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoHostLists.h"
#include "Views/kavoListView.h"
#include "Views/kavoNodeDeleter.h"
#include <kavoDragFormats.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

class tst_CameraView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_scene = std::make_unique<kavoOpenScene>();
        m_view = std::make_unique<kavoListView>(kavoHostLists::cameras(), *m_scene);
        kavoTestLoad::open("Collada/cameras.dae");
        m_scene->drainChanges();
        m_view->show();
    }

    void cleanup()
    {
        m_view.reset();
        m_scene.reset();
        kavoTestLoad::show(osg::NullFC);
    }

    void everyCameraHasARow()
    {
        const QAbstractItemModelTester tester(
            m_view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(m_view->model()->rowCount(), 3);
        QCOMPARE(row(1).data().toString(), QString("Camera_002"));
        QCOMPARE(row(1, 1).data().toString(), QString("PerspectiveCamera"));
        QCOMPARE(row(1, 2).data().toString(), QString::number(id("Camera_002")));
    }

    void theFirstCameraIsActiveAndMarked()
    {
        QCOMPARE(qint32(kavoCameraRegistry::activeNodeId()), id("Camera"));
        QCOMPARE(row(0).data().toString(), QString("Camera (active)"));
        QVERIFY(row(0).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(!row(1).data(Qt::FontRole).isValid());
    }

    void enterActivatesACamera()
    {
        QSignalSpy activated(m_view.get(), &kavoListView::rowActivated);
        m_view->setCurrentIndex(row(2));
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(row(2).data().toString(), QString("Camera_003 (active)"));
        QCOMPARE(row(0).data().toString(), QString("Camera"));
    }

    void aDragHasTheCamerasNode()
    {
        QCOMPARE(kavoDragPayload::ids(*m_view, { row(1), row(1, 1), row(1, 2) }),
            QVector<qint32> { id("Camera_002") });
        QCOMPARE(m_view->model()->mimeTypes(), QStringList { kavoDragFormats::cameras });
    }

    void severalCamerasGoInOnePayload()
    {
        const QVector<qint32> expected { id("Camera"), id("Camera_003") };
        QCOMPARE(kavoDragPayload::ids(*m_view, { row(0), row(2) }), expected);
    }

    void aNewNameShowsAtOnce()
    {
        QSignalSpy changed(m_view->model(), &QAbstractItemModel::dataChanged);
        osg::setName(kavoTestLoad::find("Camera_002"), "Top");
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(row(1).data().toString(), QString("Top"));
    }

    void aCameraGoesWithItsNode()
    {
        kavoNodeDeleter::deleteNode(osg::UInt32(id("Camera")), *m_scene);
        QTRY_COMPARE(m_view->model()->rowCount(), 2);
        QCOMPARE(kavoCameraRegistry::activeNodeId(), 0u);
    }

    void theCamerasOfASceneThatClosesAreGone()
    {
        kavoTestLoad::show(osg::NullFC);
        QCOMPARE(m_view->model()->rowCount(), 0);
    }

private:
    static qint32 id(const QString &node)
    {
        return qint32(kavoContainers::id(kavoTestLoad::find(node)));
    }

    QModelIndex row(int row, int column = 0) const { return m_view->model()->index(row, column); }

    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoListView> m_view;
};

KAVO_TEST_MAIN(tst_CameraView)
#include "tst_cameraview.moc"
