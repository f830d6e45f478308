#include <OSGDerivedContainer.h>
#include <OSGValuePairBase.h>
#include <kavoNodeQueries.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <QTest>

namespace {

struct DerivedPairs
{
    typedef osg::ValuePairBase Base;
    typedef osg::ValuePairBasePtr BasePtr;
    static constexpr const char *type = "DerivedPairs";
    static constexpr const char *parent = "ValuePairBase";
    static constexpr const char *group = "ValuePairBase";
};

struct ForeignPairs
{
    typedef osg::Attachment Base;
    typedef osg::AttachmentPtr BasePtr;
    static constexpr const char *type = "ForeignPairs";
    static constexpr const char *parent = "Attachment";
    static constexpr const char *group = "ValuePairBase";
};

const osg::FieldContainerType &pairs = osg::ValuePairBase::getClassType();

} // namespace

class tst_kavoNodeQueries : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_node = kavoTestScene::makeNode("Node", osg::NullFC); }
    void cleanup() { m_node = kavoNodePtr(); }
    void attachmentsAreFoundByTheirType();
    void attachmentsOfADerivedTypeAreFound();
    void attachmentsOfAForeignTypeInTheGroupAreNotFound();
    void otherAttachmentsAreNotFound();
    void aClearedBitOfTheTraversalMaskHidesANodeInPart();

private:
    kavoNodePtr m_node;
};

void tst_kavoNodeQueries::attachmentsAreFoundByTheirType()
{
    const osg::ValuePairBasePtr attached = osg::ValuePairBase::create();
    m_node->addAttachment(attached);
    QVERIFY(kavoNodeQueries::findAttachment(osg::NodePtr(m_node), pairs) == attached);
}

void tst_kavoNodeQueries::attachmentsOfADerivedTypeAreFound()
{
    const auto attached = osg::DerivedContainer<DerivedPairs>::create();
    m_node->addAttachment(attached);
    QVERIFY(kavoNodeQueries::findAttachment(osg::NodePtr(m_node), pairs) == attached);
}

void tst_kavoNodeQueries::attachmentsOfAForeignTypeInTheGroupAreNotFound()
{
    m_node->addAttachment(osg::DerivedContainer<ForeignPairs>::create());
    QVERIFY(m_node->findAttachment(pairs.getGroupId()) != osg::NullFC);
    QVERIFY(kavoNodeQueries::findAttachment(osg::NodePtr(m_node), pairs) == osg::NullFC);
}

void tst_kavoNodeQueries::otherAttachmentsAreNotFound()
{
    QVERIFY(kavoNodeQueries::findAttachment(osg::NodePtr(m_node), pairs) == osg::NullFC);
}

void tst_kavoNodeQueries::aClearedBitOfTheTraversalMaskHidesANodeInPart()
{
    QVERIFY(kavoNodeQueries::isFullyVisible(m_node));
    m_node->setTravMask(0x7FFFFFFF);
    QVERIFY(!kavoNodeQueries::isFullyVisible(m_node));
}

KAVO_TEST_MAIN(tst_kavoNodeQueries)
#include "tst_kavonodequeries.moc"
