#include "Scene/kavoOpenScene.h"
#include <kavoController.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGPointLight.h>

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace kavoTestScene;

class tst_OpenScene : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_scene = std::make_unique<kavoOpenScene>();
        open(makeTruck());
    }

    void cleanup()
    {
        m_scene.reset();
        kavoScenegraph::setRoot(osg::NullFC);
    }

    void theListsAreUpToDateWhenAnotherSceneIsTold()
    {
        const kavoNodePtr room = makeGroup("room");
        makeNode("lamp", osg::PointLight::create(), room);
        std::size_t lights = 0;
        connect(m_scene.get(), &kavoOpenScene::replaced, this,
            [&] { lights = m_scene->lights().size(); });
        open(room);
        QCOMPARE(lights, std::size_t(1));
    }

    void theListsAreUpToDateWhenAChangeIsTold()
    {
        std::size_t lights = 0;
        connect(m_scene.get(), &kavoOpenScene::changed, this,
            [&] { lights = m_scene->lights().size(); });
        QSignalSpy structure(m_scene.get(), &kavoOpenScene::structureChanged);
        addLamp();
        m_scene->drainChanges();
        QCOMPARE(lights, std::size_t(1));
        QCOMPARE(structure.count(), 1);
    }

    void changesAreToldInTheNextRound()
    {
        m_scene->drainChanges();
        QSignalSpy changed(m_scene.get(), &kavoOpenScene::changed);
        addLamp();
        QCOMPARE(changed.count(), 0);
        QTRY_COMPARE(changed.count(), 1);
    }

    void aSelectionIsTold()
    {
        QSignalSpy selected(m_scene.get(), &kavoOpenScene::selectionChanged);
        kavoScenegraph::setSelectedNode(kavoScenegraph::getRoot());
        QTRY_COMPARE(selected.count(), 1);
    }

private:
    static void open(const kavoNodePtr &root)
    {
        kavoScenegraph::setRoot(root);
        kavoMessage loaded(kavoMessageIds::sceneLoaded);
        kavoController::sendMessage(loaded);
    }

    static void addLamp()
    {
        const osg::NodePtr root = kavoScenegraph::getRoot();
        const osg::CPEditor edit(root, osg::Node::ChildrenFieldMask);
        makeNode("lamp", osg::PointLight::create(), root);
    }

    std::unique_ptr<kavoOpenScene> m_scene;
};

KAVO_TEST_MAIN(tst_OpenScene)
#include "tst_openscene.moc"
