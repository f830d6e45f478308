#include <OSGTransformVariantList.h>
#include <kavoOpenSGCompat.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGMaterialGroup.h>

#include <QTest>

class tst_kavoOpenSGCompat : public QObject
{
    Q_OBJECT

private slots:
    void theTargetOfASingleFieldIsFound();
    void aNullTargetIsNull();
    void theTargetsOfAMultiFieldAreFoundByIndex();
    void anIndexPastTheEndGivesNull();
    void aFieldOfTheHostsOwnHandleTypeIsReadToo();
    void changesAreNotIgnoredUnlessAskedFor();
    void theIgnoreChangeSwitchCanBeSetAndCleared();
};

static osg::FieldContainerPtr target(
    const osg::FieldContainerPtr &container, const char *field, osg::UInt32 index = 0)
{
    return kavoOpenSG::target(container->getField(field), index);
}

void tst_kavoOpenSGCompat::theTargetOfASingleFieldIsFound()
{
    const kavoNodePtr node(kavoTestScene::makeGroup("a"));
    QVERIFY(target(osg::NodePtr(node), "core") == node->getCore());
    const osg::MaterialGroupPtr group = osg::MaterialGroup::create();
    group->setMaterial(kavoTestScene::makeMaterial());
    QVERIFY(target(group, "material") == group->getMaterial());
    osg::subRefCP(group);
}

void tst_kavoOpenSGCompat::aNullTargetIsNull()
{
    const kavoNodePtr node(kavoTestScene::makeNode("a", osg::NullFC));
    QVERIFY(target(osg::NodePtr(node), "core") == osg::NullFC);
}

void tst_kavoOpenSGCompat::theTargetsOfAMultiFieldAreFoundByIndex()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    QVERIFY(target(osg::NodePtr(truck), "children", 0) == truck->getChild(0));
    QVERIFY(target(osg::NodePtr(truck), "children", 1) == truck->getChild(1));
}

void tst_kavoOpenSGCompat::anIndexPastTheEndGivesNull()
{
    const kavoNodePtr truck = kavoTestScene::makeTruck();
    QVERIFY(target(osg::NodePtr(truck), "children", 2) == osg::NullFC);
    QVERIFY(target(osg::NodePtr(truck), "core", 1) == osg::NullFC);
}

void tst_kavoOpenSGCompat::aFieldOfTheHostsOwnHandleTypeIsReadToo()
{
    const osg::TransformVariantListPtr list = osg::TransformVariantList::create();
    const osg::TransformVariantPtr variant = osg::TransformVariant::create();
    list->addVariant(osg::NullFC);
    list->addVariant(variant);
    QVERIFY(target(list, "variants", 0) == osg::NullFC);
    QVERIFY(target(list, "variants", 1) == variant);
    osg::subRefCP(list);
}

void tst_kavoOpenSGCompat::changesAreNotIgnoredUnlessAskedFor()
{
    QVERIFY(!kavoOpenSG::changesIgnored());
}

void tst_kavoOpenSGCompat::theIgnoreChangeSwitchCanBeSetAndCleared()
{
    if (!kavoOpenSG::setChangesIgnored(true))
        QSKIP("This OpenSG has no ignore-change switch.");
    QVERIFY(kavoOpenSG::changesIgnored());
    QVERIFY(kavoOpenSG::setChangesIgnored(false));
    QVERIFY(!kavoOpenSG::changesIgnored());
}

KAVO_TEST_MAIN(tst_kavoOpenSGCompat)
#include "tst_kavoopensgcompat.moc"
