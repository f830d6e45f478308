#include "kavoDragPayload.h"
#include "kavoTestLoad.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoHostLists.h"
#include "Views/kavoListView.h"
#include <kavoDragFormats.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGPointLight.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace kavoTestScene;

class tst_LightView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const kavoNodePtr root = makeGroup("root");
        kavoTestLoad::show(root);
        m_lampNode = makeNode("lamp", osg::PointLight::create(), root);
        m_sunNode = makeNode("sun", osg::DirectionalLight::create(), m_lampNode);
        m_scene = std::make_unique<kavoOpenScene>();
        m_view = std::make_unique<kavoListView>(kavoHostLists::lights(*m_scene), *m_scene);
        m_scene->drainChanges();
        m_view->resize(300, 200);
        m_view->show();
    }

    void cleanup()
    {
        m_view.reset();
        m_scene.reset();
        kavoTestLoad::show(osg::NullFC);
    }

    void everyLightHasARow()
    {
        const QAbstractItemModelTester tester(
            m_view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(m_view->model()->rowCount(), 2);
        QCOMPARE(row(0).data().toString(), QString("lamp"));
        QCOMPARE(row(0, 1).data().toString(), QString("PointLight"));
        QCOMPARE(row(1, 2).data().toString(), QString::number(id(m_sunNode)));
    }

    void theCheckBoxSwitchesTheLight()
    {
        clickCheckBox(0);
        QVERIFY(!light(m_lampNode)->getOn());
        clickCheckBox(0);
        QVERIFY(light(m_lampNode)->getOn());
    }

    void theSpaceKeySwitchesTheLight()
    {
        m_view->setCurrentIndex(row(1));
        QTest::keyClick(m_view.get(), Qt::Key_Space);
        QVERIFY(!light(m_sunNode)->getOn());
    }

    void theSwitchTellsTheChangeList()
    {
        const osg::UInt32 lamp = kavoContainers::id(light(m_lampNode));
        bool isTold = false;
        connect(m_scene.get(), &kavoOpenScene::changed,
            [&](const kavoChanges &changes) { isTold |= changes.changed.contains(lamp); });
        clickCheckBox(0);
        QTRY_VERIFY(isTold);
    }

    void aLightSwitchedElsewhereShowsItself()
    {
        QSignalSpy changed(m_view->model(), &QAbstractItemModel::dataChanged);
        osg::beginEditCP(light(m_sunNode), osg::Light::OnFieldMask);
        light(m_sunNode)->setOn(false);
        osg::endEditCP(light(m_sunNode), osg::Light::OnFieldMask);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(row(1).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    }

    void aNewLightGetsARow()
    {
        const osg::NodePtr root = kavoScenegraph::getRoot();
        makeNode("spare", osg::PointLight::create(), root);
        osg::endEditCP(root, osg::Node::ChildrenFieldMask);
        QTRY_COMPARE(m_view->model()->rowCount(), 3);
    }

    void aDragHasTheNodeAndTheLight()
    {
        const QVector<qint32> expected { id(m_lampNode), id(light(m_lampNode)) };
        QCOMPARE(kavoDragPayload::ids(*m_view, { row(0), row(0, 1), row(0, 2) }), expected);
        QCOMPARE(m_view->model()->mimeTypes(), QStringList { kavoDragFormats::lights });
    }

    void severalLightsGoInOnePayload()
    {
        const QVector<qint32> ids = kavoDragPayload::ids(*m_view, { row(0), row(1) });
        QCOMPARE(ids.size(), 4);
        QCOMPARE(ids[2], id(m_sunNode));
    }

    void enterSelectsTheLightsNode()
    {
        m_view->setCurrentIndex(row(1));
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QVERIFY(osg::NodePtr(kavoScenegraph::getSelectedNode()) == m_sunNode);
    }

private:
    static qint32 id(const osg::FieldContainerPtr &container)
    {
        return qint32(kavoContainers::id(container));
    }

    static osg::LightPtr light(const osg::NodePtr &node)
    {
        return osg::LightPtr::dcast(node->getCore());
    }

    QModelIndex row(int row, int column = 0) const { return m_view->model()->index(row, column); }

    void clickCheckBox(int of)
    {
        QStyleOptionViewItem option;
        option.initFrom(m_view.get());
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        option.rect = m_view->visualRect(row(of));
        const QRect box = m_view->style()->subElementRect(
            QStyle::SE_ItemViewItemCheckIndicator, &option, m_view.get());
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, box.center());
    }

    osg::NodePtr m_lampNode, m_sunNode;
    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoListView> m_view;
};

KAVO_TEST_MAIN(tst_LightView)
#include "tst_lightview.moc"
