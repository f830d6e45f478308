#include "kavoTestLoad.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Views/kavoNodeTreeModel.h"
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace kavoTestScene;

class tst_NodeTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const kavoNodePtr truck = makeTruck();
        kavoTestLoad::show(truck);
        m_scene = std::make_unique<kavoOpenScene>();
        m_model = std::make_unique<kavoNodeTreeModel>(*m_scene);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_scene->drainChanges();
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_scene.reset();
        kavoTestLoad::show(osg::NullFC);
    }

    void rowsShowNameCoreAndId()
    {
        const QModelIndex wheel = indexOf("Wheel");
        QCOMPARE(text(wheel, kavoNodeTreeModel::NameColumn), QString("Wheel"));
        QCOMPARE(text(wheel, kavoNodeTreeModel::CoreColumn), QString("Transform"));
        QCOMPARE(text(wheel, kavoNodeTreeModel::IdColumn),
            QString::number(kavoContainers::id(kavoTestLoad::find("Wheel"))));
        QVERIFY(!wheel.data(Qt::DecorationRole).value<QIcon>().isNull());
    }

    void aNamelessNodeGoesByItsCore()
    {
        const QModelIndex root = m_model->index(0, 0);
        m_model->fetchMore(root);
        QCOMPARE(m_model->index(1, 0, root).data().toString(), QString("Group"));
    }

    void theRootIsTheOneTopRow()
    {
        QCOMPARE(m_model->rowCount(), 1);
        QCOMPARE(m_model->index(0, 0).data().toString(), QString("Root"));
        QVERIFY(!m_model->index(0, 0).parent().isValid());
    }

    void childrenAreMadeWhenTheyAreAskedFor()
    {
        m_tester.reset(); // it would create all rows
        kavoTestLoad::show(kavoScenegraph::getRoot());
        const QModelIndex root = m_model->index(0, 0);
        QVERIFY(m_model->hasChildren(root));
        QCOMPARE(m_model->rowCount(root), 0);
        m_model->fetchMore(root);
        QCOMPARE(m_model->rowCount(root), 2);
        QVERIFY(!m_model->canFetchMore(root));
    }

    void aSceneMayBeDeeperThanTheStack()
    {
        m_tester.reset(); // it walks the tree on its own
        osg::NodePtr deepest = kavoScenegraph::getRoot();
        for (int depth = 0; depth < 100000; ++depth)
            deepest = makeGroup(nullptr, deepest);
        kavoTestLoad::show(kavoScenegraph::getRoot());
        QVERIFY(m_model->indexOf(deepest).isValid());
        m_model->setFilter(QString::number(kavoContainers::id(deepest)));
        QVERIFY(m_model->indexOf(deepest).isValid());
        m_model->setFilter(QString());
        while (deepest
            != kavoScenegraph::getRoot()) { // a chain of nodes would be destroyed by recursion
            deepest = deepest->getParent();
            deepest->subChild(osg::UInt32(0));
        }
    }

    void aNodeIsFoundThoughItsParentsAreClosed()
    {
        const QModelIndex tyre = indexOf("Tyre");
        QCOMPARE(tyre.data().toString(), QString("Tyre"));
        QCOMPARE(tyre.parent().data().toString(), QString("Wheel"));
        QVERIFY(m_model->node(tyre) == kavoTestLoad::find("Tyre"));
    }

    void nodesOutsideTheSceneHaveNoRow()
    {
        const kavoNodePtr stranger = makeGroup("stranger");
        QVERIFY(!m_model->indexOf(stranger).isValid());
        QVERIFY(!m_model->indexOf(osg::NullFC).isValid());
    }

    void anAddedNodeGetsARow()
    {
        const QModelIndex wheel = indexOf("Wheel");
        m_model->fetchMore(wheel);
        QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        addChild(kavoTestLoad::find("Wheel"), makeGroup("hub"));
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(m_model->index(1, 0, wheel).data().toString(), QString("hub"));
    }

    void aRemovedNodeLosesItsRowAndTheOthersMoveUp()
    {
        const QPersistentModelIndex other = m_model->index(1, 0, fetchedRoot());
        const osg::NodePtr root = kavoScenegraph::getRoot();
        root->subChild(osg::UInt32(0));
        osg::endEditCP(root, osg::Node::ChildrenFieldMask);
        m_scene->drainChanges();
        QCOMPARE(other.row(), 0);
        QCOMPARE(m_model->rowCount(m_model->index(0, 0)), 1);
    }

    void aMovedNodeMovesItsRow()
    {
        const osg::NodePtr tyre = kavoTestLoad::find("Tyre"), root = kavoScenegraph::getRoot();
        const QModelIndex wheel = indexOf("Tyre").parent();
        addChild(root, tyre);
        osg::endEditCP(kavoTestLoad::find("Wheel"), osg::Node::ChildrenFieldMask);
        m_scene->drainChanges();
        QCOMPARE(m_model->rowCount(wheel), 0);
        QCOMPARE(indexOf("Tyre").parent(), m_model->index(0, 0));
    }

    void aNewNameShowsAtOnce()
    {
        const QPersistentModelIndex wheel = indexOf("Wheel");
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        osg::setName(kavoTestLoad::find("Wheel"), "Rim");
        m_scene->drainChanges();
        QVERIFY(changed.count() > 0);
        QCOMPARE(wheel.data().toString(), QString("Rim"));
    }

    void aClosedRowThatGetsItsFirstChildGetsItsArrow()
    {
        const QPersistentModelIndex empty = m_model->index(1, 0, fetchedRoot());
        QVERIFY(!m_model->hasChildren(empty));
        int layouts = 0;
        connect(m_model.get(), &QAbstractItemModel::layoutChanged, this, [&] { ++layouts; });
        addChild(m_model->node(empty), makeGroup("first"));
        QCOMPARE(layouts, 1);
        QVERIFY(m_model->hasChildren(empty));
    }

    void aDeadNodesRowShowsNothingUntilItGoes()
    {
        const QPersistentModelIndex tyre = indexOf("Tyre");
        const osg::NodePtr wheel = kavoTestLoad::find("Wheel");
        wheel->subChild(osg::UInt32(0));
        QVERIFY(!tyre.data().isValid());
        osg::endEditCP(wheel, osg::Node::ChildrenFieldMask);
        m_scene->drainChanges();
        QVERIFY(!tyre.isValid());
    }

    void aRootThatDiesEmptiesTheTree()
    {
        kavoScenegraph::setRoot(osg::NullFC);
        m_scene->drainChanges();
        QCOMPARE(m_model->rowCount(), 0);
    }

    void theFilterLeavesMatchesAndTheirAncestors_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<int>("left");
        QTest::newRow("name") << "tyre" << 3;
        QTest::newRow("core type") << "transform" << 2;
        QTest::newRow("both kinds of groups") << "group" << 2;
        QTest::newRow("id") << "id of the root" << 1;
        QTest::newRow("nothing") << "no such node" << 0;
    }

    void theFilterLeavesMatchesAndTheirAncestors()
    {
        QFETCH(QString, filter);
        QFETCH(int, left);
        if (QTest::currentDataTag() == QByteArray("id")) // known only now
            filter = QString::number(kavoContainers::id(kavoScenegraph::getRoot()));
        m_model->setFilter(filter);
        QCOMPARE(m_model->filteredCount(), left);
        QCOMPARE(m_model->rowCount(), left ? 1 : 0);
        QCOMPARE(indexOf("Tyre").isValid(), left == 3);
        m_model->setFilter(QString());
        QVERIFY(indexOf("Tyre").isValid());
    }

    void nodesOfAVeryBigSceneAreFound()
    {
        const kavoNodePtr root = makeGroup("big");
        for (int i = 0; i < 100; ++i) {
            const osg::NodePtr branch = makeGroup("branch", root);
            for (int leaf = 0; leaf < 1000; ++leaf)
                makeGroup("leaf", branch);
        }
        kavoTestLoad::show(root);
        const QModelIndex big = m_model->index(0, 0);
        m_model->fetchMore(big);
        for (int i = 0; i < 100; ++i)
            for (int leaf = 0; leaf < 1000; leaf += 100)
                QVERIFY(m_model->indexOf(root->getChild(i)->getChild(leaf)).isValid());
        QCOMPARE(m_model->rowCount(m_model->index(99, 0, big)), 1000);
    }

private:
    QModelIndex indexOf(const QString &name) { return m_model->indexOf(kavoTestLoad::find(name)); }

    static QString text(const QModelIndex &row, int column)
    {
        return row.siblingAtColumn(column).data().toString();
    }

    QModelIndex fetchedRoot()
    {
        m_model->fetchMore(m_model->index(0, 0));
        return m_model->index(0, 0);
    }

    void addChild(const osg::NodePtr &parent, const osg::NodePtr &child)
    {
        osg::beginEditCP(parent, osg::Node::ChildrenFieldMask);
        parent->addChild(child);
        osg::endEditCP(parent, osg::Node::ChildrenFieldMask);
        m_scene->drainChanges();
    }

    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoNodeTreeModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

KAVO_TEST_MAIN(tst_NodeTreeModel)
#include "tst_nodetreemodel.moc"
