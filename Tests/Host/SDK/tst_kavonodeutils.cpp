#include <OSGValuePairBase.h>
#include <kavoNodeUtils.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QTest>

using kavoTestScene::makeNode;

class tst_kavoNodeUtils : public QObject
{
    Q_OBJECT

private slots:
    void aNullNodeHasNoName();
    void aNodesOwnNameComesFirst();
    void anEmptyNameIsAName();
    void aNamelessNodeIsCalledLikeItsCore();
    void aNamelessCoreGivesTheNameOfItsType();
    void aNodeWithoutNameAndCoreHasNoName();
    void hasNameAsksTheNodeItselfOnly();
    void attachmentsAreFoundByTheirType();
    void aClearedBitOfTheTraversalMaskHidesANodeInPart();
};

static osg::NodeCorePtr namedGroup(const char *name)
{
    const osg::GroupPtr core = osg::Group::create();
    osg::setName(core, name);
    return core;
}

void tst_kavoNodeUtils::aNullNodeHasNoName()
{
    QVERIFY(!kavoNodeUtils::getName(osg::NullFC));
    QVERIFY(!kavoNodeUtils::hasName(osg::NullFC));
}

void tst_kavoNodeUtils::aNodesOwnNameComesFirst()
{
    const kavoNodePtr node(makeNode("Sphere", namedGroup("Core")));
    QCOMPARE(kavoNodeUtils::getName(node), "Sphere");
}

void tst_kavoNodeUtils::anEmptyNameIsAName()
{
    const kavoNodePtr node(makeNode("", namedGroup("Core")));
    QCOMPARE(kavoNodeUtils::getName(node), "");
    QVERIFY(kavoNodeUtils::hasName(node));
}

void tst_kavoNodeUtils::aNamelessNodeIsCalledLikeItsCore()
{
    const kavoNodePtr node(makeNode(nullptr, namedGroup("Core")));
    QCOMPARE(kavoNodeUtils::getName(node), "Core");
}

void tst_kavoNodeUtils::aNamelessCoreGivesTheNameOfItsType()
{
    const kavoNodePtr node(makeNode(nullptr, osg::Geometry::create()));
    QCOMPARE(kavoNodeUtils::getName(node), "Geometry");
}

void tst_kavoNodeUtils::aNodeWithoutNameAndCoreHasNoName()
{
    const kavoNodePtr node(makeNode(nullptr, osg::NullFC));
    QVERIFY(!kavoNodeUtils::getName(node));
}

void tst_kavoNodeUtils::hasNameAsksTheNodeItselfOnly()
{
    QVERIFY(!kavoNodeUtils::hasName(kavoNodePtr(makeNode(nullptr, namedGroup("Core")))));
    QVERIFY(kavoNodeUtils::hasName(kavoNodePtr(makeNode("Node", osg::NullFC))));
}

void tst_kavoNodeUtils::attachmentsAreFoundByTheirType()
{
    const kavoNodePtr node(makeNode("Node", osg::NullFC));
    const osg::AttachmentPtr name
        = kavoNodeUtils::findAttachment(osg::NodePtr(node), osg::Name::getClassType());
    QVERIFY(osg::NamePtr::dcast(name) != osg::NullFC);
    const auto &pairs = osg::ValuePairBase::getClassType();
    QVERIFY(kavoNodeUtils::findAttachment(osg::NodePtr(node), pairs) == osg::NullFC);
}

void tst_kavoNodeUtils::aClearedBitOfTheTraversalMaskHidesANodeInPart()
{
    const kavoNodePtr node(makeNode("Node", osg::NullFC));
    QVERIFY(kavoNodeUtils::isFullyVisible(node));
    node->setTravMask(0x7FFFFFFF);
    QVERIFY(!kavoNodeUtils::isFullyVisible(node));
}

KAVO_TEST_MAIN(tst_kavoNodeUtils)
#include "tst_kavonodeutils.moc"
