#include "kavoTestLoad.h"

#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"
#include "Viewport/kavoViewport.h"
#include "Views/kavoNodeDeleter.h"
#include "Views/kavoNodeTreeView.h"
#include <kavoDialogUser.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGPointLight.h>

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QtTest>

using namespace kavoTestScene;

class tst_NodeTreeView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const kavoNodePtr truck = makeTruck();
        kavoTestLoad::show(truck);
        m_scene = std::make_unique<kavoOpenScene>();
        m_view = std::make_unique<kavoNodeTreeView>(*m_scene);
        m_view->resize(400, 300);
        m_view->show();
        m_view->activateWindow();
        m_view->tree()->setFocus(); // its keys work only with focus
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    }

    void cleanup()
    {
        m_view.reset();
        m_scene.reset();
        kavoTestLoad::show(osg::NullFC);
        QCoreApplication::processEvents();
    }

    void aClickSelectsTheNode()
    {
        const QModelIndex row = m_view->tree()->model()->index(0, 0, root());
        QTest::mouseClick(m_view->tree()->viewport(), Qt::LeftButton, {},
            m_view->tree()->visualRect(row).center());
        QVERIFY(selected() == kavoTestLoad::find("Wheel"));
    }

    void aCtrlClickOnTheSelectedRowSelectsNothing()
    {
        select("Wheel");
        QTest::mouseClick(m_view->tree()->viewport(), Qt::LeftButton, Qt::ControlModifier,
            m_view->tree()->visualRect(m_view->tree()->currentIndex()).center());
        QVERIFY(selected() == osg::NullFC);
        QTest::qWait(20);
        QVERIFY(!m_view->tree()->selectionModel()->hasSelection());
    }

    void arrowKeysSelectToo()
    {
        m_view->tree()->setCurrentIndex(root());
        QTest::keyClick(m_view->tree(), Qt::Key_Down);
        QVERIFY(selected() == kavoTestLoad::find("Wheel"));
    }

    void theTreeFollowsASelectionMadeElsewhere()
    {
        select("Tyre");
        QCOMPARE(m_view->tree()->currentIndex().data().toString(), QString("Tyre"));
        QVERIFY(m_view->tree()->isExpanded(m_view->tree()->currentIndex().parent()));
        QVERIFY(selected() == kavoTestLoad::find("Tyre"));
    }

    void anEmptySelectionMadeElsewhereShowsToo()
    {
        select("Tyre");
        kavoScenegraph::setSelectedNode(osg::NullFC);
        QTRY_VERIFY(!m_view->tree()->selectionModel()->hasSelection());
    }

    void theSameNodeCanBeSelectedAgainAfterwards()
    {
        select("Tyre");
        kavoScenegraph::setSelectedNode(osg::NullFC);
        QTRY_VERIFY(!m_view->tree()->selectionModel()->hasSelection());
        select("Tyre");
        QVERIFY(m_view->tree()->selectionModel()->hasSelection());
    }

    // QTreeView lays out nested open branches by recursion.
    void aNodeDeeperThanTheStackIsNotShownSelected()
    {
        select("Tyre");
        const osg::NodePtr deepest = addChain("Wheel", 40000);
        kavoScenegraph::setSelectedNode(deepest);
        QTRY_VERIFY(!m_view->tree()->selectionModel()->hasSelection());
        QVERIFY(selected() == deepest);
        select("Tyre");
        QVERIFY(m_view->tree()->selectionModel()->hasSelection());
    }

    void aNodeTwoThousandLevelsDownIsShownSelected()
    {
        kavoScenegraph::setSelectedNode(addChain("Wheel", 1998)); // "Wheel" is on the second level
        QTRY_VERIFY(m_view->tree()->selectionModel()->hasSelection());
        int level = 0;
        for (QModelIndex at = m_view->tree()->currentIndex(); at.isValid(); at = at.parent())
            ++level;
        QCOMPARE(level, 2000);
    }

    void escapeSelectsNothing()
    {
        select("Tyre");
        QTest::keyClick(m_view->tree(), Qt::Key_Escape);
        QVERIFY(selected() == osg::NullFC);
    }

    void escapeInTheFilterShowsAllNodesAgain()
    {
        QTest::keyClicks(m_view->filter(), "tyre");
        QTRY_COMPARE(m_view->tree()->model()->rowCount(root()), 1);
        QTest::keyClick(m_view->filter(), Qt::Key_Escape);
        QTRY_COMPARE(m_view->tree()->model()->rowCount(root()), 2);
    }

    void downInTheFilterGoesOnInTheTree()
    {
        m_view->filter()->setFocus();
        QTest::keyClick(m_view->filter(), Qt::Key_Down);
        QVERIFY(m_view->tree()->hasFocus());
    }

    void delAsksAndDeletesAfterTheSelectionIsGone()
    {
        const osg::UInt32 tyre = select("Tyre");
        kavoDialogUser user;
        user.willPress(QMessageBox::Yes);
        QTest::keyClick(m_view->tree(), Qt::Key_Delete);
        QVERIFY(selected() == osg::NullFC);
        QVERIFY(kavoContainers::find(tyre) != osg::NullFC); // the editor must release it first
        QTRY_VERIFY(kavoContainers::find(tyre) == osg::NullFC);
        QTRY_COMPARE(
            m_view->tree()->model()->rowCount(m_view->tree()->model()->index(0, 0, root())), 0);
    }

    void delWithoutConfirmationDeletesNothing()
    {
        const osg::UInt32 tyre = select("Tyre");
        kavoDialogUser user;
        user.willPress(QMessageBox::No);
        QTest::keyClick(m_view->tree(), Qt::Key_Delete);
        QVERIFY(user.isDone());
        QTest::qWait(20);
        QVERIFY(kavoContainers::find(tyre) != osg::NullFC);
        QVERIFY(selected() == kavoTestLoad::find("Tyre"));
    }

    void theRootCannotBeDeleted()
    {
        select("Root");
        QTest::keyClick(m_view->tree(), Qt::Key_Delete); // asks nothing
        QTest::qWait(20);
        QVERIFY(kavoScenegraph::getRoot() != osg::NullFC);
        QVERIFY(!kavoNodeDeleter::canDelete(kavoScenegraph::getRoot()));
    }

    void aLightLosesABeaconThatIsDeleted()
    {
        const auto light = osg::PointLight::create();
        const osg::NodePtr lamp = makeNode("lamp", light, kavoScenegraph::getRoot());
        const osg::NodePtr beacon = makeGroup("beacon", lamp);
        light->setBeacon(beacon);
        kavoTestLoad::show(kavoScenegraph::getRoot());
        kavoNodeDeleter::deleteNode(kavoContainers::id(beacon), *m_scene);
        QVERIFY(light->getBeacon() == osg::NullFC);
    }

    void aSelectedNodeThatLeavesTheSceneIsDeselected()
    {
        select("Tyre");
        const osg::NodePtr wheel = kavoTestLoad::find("Wheel");
        wheel->subChild(osg::UInt32(0));
        osg::endEditCP(wheel, osg::Node::ChildrenFieldMask);
        QTRY_VERIFY(selected() == osg::NullFC);
    }

    void theFilterOpensWhatItFinds()
    {
        QTest::keyClicks(m_view->filter(), "tyre");
        QTRY_COMPARE(m_view->tree()->model()->rowCount(root()), 1);
        const QModelIndex wheel = m_view->tree()->model()->index(0, 0, root());
        QVERIFY(m_view->tree()->isExpanded(wheel));
        QTest::keyClick(m_view->filter(), Qt::Key_Backspace);
        m_view->filter()->clear();
        QTRY_COMPARE(m_view->tree()->model()->rowCount(root()), 2);
    }

    void theFilterKeepsTheSelection()
    {
        select("Tyre");
        QTest::keyClicks(m_view->filter(), "wheel");
        QTRY_COMPARE(m_view->tree()->model()->rowCount(root()), 1);
        QVERIFY(selected() == kavoTestLoad::find("Tyre"));
    }

    void withoutOpenGLTheViewportIsAWordOfExplanation()
    {
        QVERIFY(!kavoViewport::isAvailable()); // these tests run without a display
        const std::unique_ptr<QWidget> view(kavoViewport::create(*m_scene));
        QVERIFY(qobject_cast<QLabel *>(view.get())->text().contains("OpenGL"));
    }

private:
    /// Adds a chain of nodes below the node of that name. \returns the innermost node
    static osg::NodePtr addChain(const char *name, int length)
    {
        osg::NodePtr node = kavoTestLoad::find(name);
        while (length-- > 0)
            node = makeGroup("Link", node);
        kavoTestLoad::show(kavoScenegraph::getRoot());
        return node;
    }

    QModelIndex root() const { return m_view->tree()->model()->index(0, 0); }

    static osg::NodePtr selected() { return kavoScenegraph::getSelectedNode(); }

    osg::UInt32 select(const QString &name)
    {
        const osg::NodePtr node = kavoTestLoad::find(name);
        kavoScenegraph::setSelectedNode(node);
        QTest::qWait(20);
        return kavoContainers::id(node);
    }

    std::unique_ptr<kavoOpenScene> m_scene;
    std::unique_ptr<kavoNodeTreeView> m_view;
};

KAVO_TEST_MAIN(tst_NodeTreeView)
#include "tst_nodetreeview.moc"
