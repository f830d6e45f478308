#include <OSGDerivedContainer.h>
#include <kavoNodeUtils.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QTest>

using kavoTestScene::makeNode;

namespace {

struct DerivedName
{
    typedef osg::Name Base;
    typedef osg::NamePtr BasePtr;
    static constexpr const char *type = "DerivedName";
    static constexpr const char *parent = "Name";
    static constexpr const char *group = "name";
};

struct ForeignName
{
    typedef osg::Attachment Base;
    typedef osg::AttachmentPtr BasePtr;
    static constexpr const char *type = "ForeignName";
    static constexpr const char *parent = "Attachment";
    static constexpr const char *group = "name";
};

osg::NodeCorePtr namedGroup(const char *name)
{
    const osg::GroupPtr core = osg::Group::create();
    osg::setName(core, name);
    return core;
}

} // namespace

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
    void attachmentsDerivedFromNameAreNames();
    void otherTypesInTheGroupOfNamesAreNoNames();
};

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

void tst_kavoNodeUtils::attachmentsDerivedFromNameAreNames()
{
    const auto name = osg::DerivedContainer<DerivedName>::create();
    name->getFieldPtr()->setValue("Derived");
    const kavoNodePtr node(makeNode(nullptr, namedGroup("Core")));
    node->addAttachment(name);
    QVERIFY(kavoNodeUtils::hasName(node));
    QCOMPARE(kavoNodeUtils::getName(node), "Derived");
}

void tst_kavoNodeUtils::otherTypesInTheGroupOfNamesAreNoNames()
{
    const osg::GroupPtr core = osg::Group::create();
    const kavoNodePtr node(makeNode(nullptr, core));
    node->addAttachment(osg::DerivedContainer<ForeignName>::create());
    core->addAttachment(osg::DerivedContainer<ForeignName>::create());
    QVERIFY(node->findAttachment(osg::Name::getClassType().getGroupId()) != osg::NullFC);
    QVERIFY(!kavoNodeUtils::hasName(node));
    QCOMPARE(kavoNodeUtils::getName(node), "Group");
}

KAVO_TEST_MAIN(tst_kavoNodeUtils)
#include "tst_kavonodeutils.moc"
