#include "Scene/kavoChangeMonitor.h"
#include "Scene/kavoContainers.h"
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGThread.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

class tst_ChangeMonitor : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        osg::Thread::getCurrentChangeList()->clearAll();
        m_root = kavoTestScene::makeGroup("root");
        m_monitor = std::make_unique<kavoChangeMonitor>();
        m_monitor->drain();
        m_rounds.clear();
        connect(m_monitor.get(), &kavoChangeMonitor::changed, this,
            [this](const kavoChanges &changes) { m_rounds.append(changes); });
    }

    void cleanup()
    {
        m_monitor.reset();
        m_root = osg::NullFC;
    }

    void editsOfOneRoundComeTogetherAndAfterTheEdit()
    {
        edit(osg::Node::TravMaskFieldMask);
        edit(osg::Node::CoreFieldMask);
        QCOMPARE(m_rounds.size(), 0);
        QTRY_COMPARE(m_rounds.size(), 1);
        const osg::UInt32 id = kavoContainers::id(m_root);
        QVERIFY(m_rounds[0].contains(id, osg::Node::TravMaskFieldMask));
        QVERIFY(m_rounds[0].contains(id, osg::Node::CoreFieldMask));
        QVERIFY(!m_rounds[0].contains(id, osg::Node::ChildrenFieldMask));
    }

    void theListIsEmptyAfterwards()
    {
        edit(osg::Node::TravMaskFieldMask);
        QTRY_COMPARE(m_rounds.size(), 1);
        osg::ChangeList &list = *osg::Thread::getCurrentChangeList();
        QCOMPARE(int(list.sizeChanged() + list.sizeAddRefd() + list.sizeSubRefd()), 0);
        QTest::qWait(20);
        QCOMPARE(m_rounds.size(), 1);
    }

    void nothingIsToldWhereNothingHappened()
    {
        QTest::qWait(20);
        QCOMPARE(m_rounds.size(), 0);
    }

    void aLoopThatNeverRestsIsServedToo()
    {
        QTimer busy;
        busy.start(0);
        edit(osg::Node::TravMaskFieldMask);
        QTRY_COMPARE(m_rounds.size(), 1);
    }

    void createdAndDestroyedContainersAreTold()
    {
        const osg::UInt32 id = kavoContainers::id(kavoTestScene::makeGroup("child", m_root));
        m_monitor->drain();
        QVERIFY(m_rounds.last().created.contains(id));
        m_root->subChild(osg::UInt32(0));
        m_monitor->drain();
        QVERIFY(m_rounds.last().destroyed.contains(id));
    }

    void whatDiedInTheSameRoundIsNeitherCreatedNorChanged()
    {
        const osg::UInt32 id = kavoContainers::id(kavoTestScene::makeGroup("child", m_root));
        m_root->subChild(osg::UInt32(0));
        m_monitor->drain();
        QVERIFY(!m_rounds.last().created.contains(id));
        QVERIFY(!m_rounds.last().changed.contains(id));
    }

    void anEditedNameTouchesTheNodeThatHasIt()
    {
        osg::setName(osg::NodePtr(m_root), "other name");
        m_monitor->drain();
        QVERIFY(m_rounds.last().touched.contains(kavoContainers::id(m_root)));
    }

    void anEditedCoreTouchesAllNodesThatShareIt()
    {
        const osg::NodeCorePtr core = osg::Transform::create();
        const osg::NodePtr one = kavoTestScene::makeNode("one", core, m_root);
        const osg::NodePtr other = kavoTestScene::makeNode("other", core, m_root);
        m_monitor->drain();
        osg::endEditCP(core, osg::Transform::MatrixFieldMask);
        m_monitor->drain();
        QVERIFY(m_rounds.last().touched.contains(kavoContainers::id(one)));
        QVERIFY(m_rounds.last().touched.contains(kavoContainers::id(other)));
        QVERIFY(!m_rounds.last().touched.contains(kavoContainers::id(m_root)));
    }

private:
    void edit(osg::BitVector fields)
    {
        osg::beginEditCP(osg::NodePtr(m_root), fields);
        osg::endEditCP(osg::NodePtr(m_root), fields);
    }

    kavoNodePtr m_root;
    std::unique_ptr<kavoChangeMonitor> m_monitor;
    QVector<kavoChanges> m_rounds;
};

KAVO_TEST_MAIN(tst_ChangeMonitor)
#include "tst_changemonitor.moc"
