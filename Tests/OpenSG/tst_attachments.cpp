#include "LogCapture.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGStringAttributeMap.h>

#include <QtTest>

using namespace osg;

class tst_Attachments : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }
    void init();
    void cleanup();

    void anAttachmentIsReferencedAndKnowsItsParent();
    void nullAttachmentsAreIgnored();
    void theKeyIsGroupAndBinding();
    void anAttachmentOfTheSameKeyIsReplaced();
    void anAttachmentReplacesItselfByTheHandleInTheMap();
    void bindingsTellAttachmentsApart();
    void anAttachmentCanHangOnSeveralContainers();
    void aCopyBindsEverythingToZero();
    void destructionUnlinksAttachments();
    void anAttachmentOfVeryManyContainersIsQuicklyReleased();
    void theInternalFlagIsAField();
    void aNameIsAnAttachment();
    void containersWithoutNameHaveNone();
    void anEmptyNameIsAName();
    void aNullTakesTheNameAway();
    void namingNothingIsFatal();
    void anAddressIsKept();
    void attributesAreFoundByName();
    void missingAttributesAreEmpty();
    void theTextOfTheMapIsAConstant();
    void descriptionsOfAttachmentCarryRemarks();

private:
    NodePtr m_node;
};

void tst_Attachments::init()
{
    m_node = Node::create();
    addRefCP(m_node);
}

void tst_Attachments::cleanup()
{
    clearRefCP(m_node);
}

void tst_Attachments::anAttachmentIsReferencedAndKnowsItsParent()
{
    const NamePtr name = Name::create();
    m_node->addAttachment(name);
    QCOMPARE(name.getRefCount(), 1);
    QCOMPARE(name->findParent(m_node), 0);
    QCOMPARE(name->findParent(NullFC), -1);
    QVERIFY(m_node->findAttachment(Name::getClassType()) == name);
}

void tst_Attachments::nullAttachmentsAreIgnored()
{
    m_node->addAttachment(NullFC);
    m_node->subAttachment(NullFC);
    QVERIFY(m_node->getSFAttachments()->getValue().empty());
}

void tst_Attachments::theKeyIsGroupAndBinding()
{
    m_node->addAttachment(Name::create(), 7);
    const UInt32 group = Name::getClassType().getGroupId();
    QCOMPARE(m_node->getSFAttachments()->getValue().begin()->first, group << 16 | 7);
}

void tst_Attachments::anAttachmentOfTheSameKeyIsReplaced()
{
    const NameRefPtr first(Name::create());
    const NamePtr second = Name::create();
    m_node->addAttachment(first.get());
    m_node->addAttachment(second);
    QVERIFY(m_node->findAttachment(Name::getClassType()) == second);
    QCOMPARE(first.get().getRefCount(), 1);
    QVERIFY(first->getParents().empty());
    m_node->addAttachment(second);
    QCOMPARE(second.getRefCount(), 1);
}

void tst_Attachments::anAttachmentReplacesItselfByTheHandleInTheMap()
{
    m_node->addAttachment(Name::create());
    const AttachmentPtr name = m_node->getSFAttachments()->getValue().begin()->second;
    m_node->addAttachment(m_node->getSFAttachments()->getValue().begin()->second);
    QCOMPARE(name.getRefCount(), 1);
    QCOMPARE(name->getParents().size(), 1u);
    QVERIFY(m_node->findAttachment(Name::getClassType()) == name);
}

void tst_Attachments::bindingsTellAttachmentsApart()
{
    const NamePtr first = Name::create();
    const NamePtr second = Name::create();
    m_node->addAttachment(first);
    m_node->addAttachment(second, 1);
    QVERIFY(m_node->findAttachment(Name::getClassType()) == first);
    QVERIFY(m_node->findAttachment(Name::getClassType().getGroupId(), 1) == second);
    QVERIFY(m_node->findAttachment(Name::getClassType(), 2) == NullFC);
    m_node->subAttachment(first, 1);
    QVERIFY(m_node->findAttachment(Name::getClassType(), 1) == NullFC);
}

void tst_Attachments::anAttachmentCanHangOnSeveralContainers()
{
    const NamePtr name = Name::create();
    const NodeRefPtr other(Node::create());
    m_node->addAttachment(name);
    other->addAttachment(name);
    QCOMPARE(name->getParents().size(), 2u);
    m_node->subAttachment(name);
    QCOMPARE(name->findParent(other.get()), 0);
    QCOMPARE(name.getRefCount(), 1);
}

void tst_Attachments::aCopyBindsEverythingToZero()
{
    const NamePtr name = Name::create();
    m_node->addAttachment(name, 7);
    const NodeRefPtr copy(NodePtr::dcast(m_node->shallowCopy()));
    QVERIFY(copy->findAttachment(Name::getClassType(), 0) == name);
    QVERIFY(copy->findAttachment(Name::getClassType(), 7) == NullFC);
    QCOMPARE(name.getRefCount(), 2);
}

void tst_Attachments::destructionUnlinksAttachments()
{
    const NameRefPtr name(Name::create());
    m_node->addAttachment(name.get());
    clearRefCP(m_node);
    QCOMPARE(name.get().getRefCount(), 1);
    QVERIFY(name->getParents().empty());
}

// From the front every release would walk over all parents that are left: the test would take
// minutes.
void tst_Attachments::anAttachmentOfVeryManyContainersIsQuicklyReleased()
{
    constexpr int count = 100000;
    const NameRefPtr name(Name::create());
    std::vector<NodeRefPtr> nodes;
    for (int i = 0; i < count; ++i) {
        nodes.emplace_back(Node::create());
        nodes.back()->addAttachment(name.get());
    }
    while (!nodes.empty()) {
        nodes.pop_back();
    }
    QVERIFY(name->getParents().empty());
}

void tst_Attachments::theInternalFlagIsAField()
{
    const NameRefPtr name(Name::create());
    QVERIFY(&name->getInternal() == name->getSFInternal());
    name->setInternal(true);
    QVERIFY(name->getInternal().getValue());
}

void tst_Attachments::aNameIsAnAttachment()
{
    setName(m_node, "wheel");
    const NamePtr name = NamePtr::dcast(m_node->findAttachment(Name::getClassType()));
    QCOMPARE(name->getFieldPtr()->getValue(), std::string("wheel"));
    setName(m_node, std::string("axle"));
    QCOMPARE(getName(m_node), "axle");
    QVERIFY(m_node->findAttachment(Name::getClassType()) == name);
    QVERIFY(name->Attachment::getField("name") == name->getFieldPtr());
}

void tst_Attachments::containersWithoutNameHaveNone()
{
    QVERIFY(!getName(m_node));
    QVERIFY(!getName(NodePtr()));
}

void tst_Attachments::anEmptyNameIsAName()
{
    setName(m_node, "");
    QCOMPARE(getName(m_node), "");
}

void tst_Attachments::aNullTakesTheNameAway()
{
    setName(m_node, "gone");
    setName(m_node, nullptr);
    QVERIFY(!getName(m_node));
    setName(m_node, nullptr);
    QVERIFY(m_node->getSFAttachments()->getValue().empty());
}

void tst_Attachments::namingNothingIsFatal()
{
    const LogCapture log;
    setName(NodePtr(), "nobody");
    setName(NodePtr(), nullptr);
    QCOMPARE(log.text.count("FATAL:  "), 2);
}

void tst_Attachments::anAddressIsKept()
{
    int something = 0;
    QVERIFY(!getVoidP(m_node));
    setVoidP(m_node, &something, true);
    QCOMPARE(getVoidP(m_node), static_cast<void *>(&something));
    const AttachmentPtr kept = m_node->findAttachment(VoidPAttachment::getClassType());
    QVERIFY(kept->getInternal().getValue());
}

void tst_Attachments::attributesAreFoundByName()
{
    const StringAttributeMapRefPtr map(StringAttributeMap::create());
    map->setAttribute("colour", "red");
    map->setAttribute("size", "large");
    map->setAttribute("colour", "blue");
    std::string value;
    QVERIFY(map->getAttribute("colour", value));
    QCOMPARE(value, std::string("blue"));
    QVERIFY(map->hasAttribute("size"));
    QCOMPARE(map->getKeys().size(), 2u);
    QCOMPARE(map->getValues().size(), 2u);
}

void tst_Attachments::missingAttributesAreEmpty()
{
    const StringAttributeMapRefPtr map(StringAttributeMap::create());
    std::string value = "kept";
    QVERIFY(!map->hasAttribute("size"));
    QVERIFY(!map->getAttribute("size", value));
    QCOMPARE(value, std::string("kept"));
    QCOMPARE(map->getAttribute("size"), std::string());
}

void tst_Attachments::theTextOfTheMapIsAConstant()
{
    std::string text;
    QCOMPARE(m_node->getField("attachments")->getValueByStr(text), std::string("AttachmentMap"));
}

void tst_Attachments::descriptionsOfAttachmentCarryRemarks()
{
    FieldContainerType &type = Attachment::getClassType();
    QCOMPARE(type.findFieldDescription("internal")->getDefaultValue(), "true");
    QCOMPARE(type.findFieldDescription("parents")->getDefaultValue(), "test");
    QVERIFY(!Node::getClassType().findFieldDescription("core")->getDefaultValue());
}

QTEST_APPLESS_MAIN(tst_Attachments)
#include "tst_attachments.moc"
