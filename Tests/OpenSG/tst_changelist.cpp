#include "LogCapture.h"
#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

#include <memory>
#include <thread>

using namespace osg;

namespace {

typedef QVector<QPair<UInt32, quint64>> Changes;
typedef QVector<UInt32> Ids;

ChangeList &current()
{
    return *Thread::getCurrentChangeList();
}

Changes changes()
{
    Changes result;
    for (auto entry = current().beginChanged(); entry != current().endChanged(); ++entry) {
        result.append({ entry->first, entry->second });
    }
    return result;
}

template <class Iterator> Ids ids(Iterator begin, Iterator end)
{
    Ids result;
    std::for_each(begin, end, [&](UInt32 id) { result.append(id); });
    return result;
}

Ids createdIds()
{
    return ids(current().beginCreated(), current().endCreated());
}
Ids destroyedIds()
{
    return ids(current().beginDestroyed(), current().endDestroyed());
}
Ids referencedIds()
{
    return ids(current().beginAddRefd(), current().endAddRefd());
}
Ids releasedIds()
{
    return ids(current().beginSubRefd(), current().endSubRefd());
}

struct Unreferencer
{
    void operator()(ChangeList *list) const { subRefP(list); }
};

std::unique_ptr<ChangeList, Unreferencer> newList()
{
    auto *list = new ChangeList;
    addRefP(list);
    return std::unique_ptr<ChangeList, Unreferencer>(list);
}

} // namespace

class tst_ChangeList : public QObject
{
    Q_OBJECT

private slots:
    void beforeTheStartThereIsNone();
    void listsAreReadOnlyUnlessToldBeforeTheStart();
    void theStartLeavesItEmpty();
    void afterTheStartTheDefaultStaysAsItIs();
    void otherThreadsHaveNone();
    void threadAndItsBaseAgree();
    void aNewNodeIsCreatedAndItsVolumeChanged();
    void setCoreReferencesTheCoreAndChangesItsParents();
    void addChildReferencesTheChildAndChangesItsParent();
    void setNameAddsTheAttachmentAndChangesBoth();
    void twoEditsAreTwoEntries();
    void theDefaultMaskIsEverything();
    void endEditNotChangedOnlyEntersTheChange();
    void changedOnlyLetsTheContainerFollow();
    void theListIsFilledBeforeTheContainerFollows();
    void theEditorEditsForTheLifeOfAScope();
    void destructionIsEntered();
    void onlySurvivedReleasesAreEntered();
    void aReadOnlyListIgnoresEverything();
    void mergeAppendsAndSwapExchanges();
    void aListCanBeGivenAnAspect();
    void afterTheEndThereIsNone();
};

namespace {

/// A group that notes what it is told.
class Follower : public Group
{
public:
    static FCPtr<GroupPtr, Follower> make()
    {
        FCPtr<GroupPtr, Follower> result;
        newPtr(result);
        return result;
    }

    void changed(BitVector whichField, UInt32 origin) override
    {
        masks.append(whichField);
        origins.append(origin);
        entriesSeen = static_cast<int>(current().sizeChanged());
    }

    QVector<quint64> masks;
    Ids origins;
    int entriesSeen = -1;

protected:
    friend class FieldContainer;
    Follower() = default;
    Follower(const Follower &) = default;
};

typedef FCPtr<GroupPtr, Follower> FollowerPtr;

} // namespace

void tst_ChangeList::beforeTheStartThereIsNone()
{
    NOT_IN_STOCK("stock 1.8 crashes where a thread has no change list");
    QVERIFY(!Thread::getCurrentChangeList());
    QVERIFY(!Thread::getCurrent());
    QCOMPARE(Thread::getAspect(), 0u);
}

void tst_ChangeList::listsAreReadOnlyUnlessToldBeforeTheStart()
{
    const auto list = newList();
    list->addCreated(1);
    QCOMPARE(list->sizeCreated(), std::size_t(0));
    ChangeList::setReadWriteDefault(true);
    const auto writable = newList();
    writable->addCreated(1);
    QCOMPARE(writable->sizeCreated(), std::size_t(1));
}

void tst_ChangeList::theStartLeavesItEmpty()
{
    osgInit(0, nullptr);
    QVERIFY(Thread::getCurrent());
    QVERIFY(current().empty());
}

void tst_ChangeList::afterTheStartTheDefaultStaysAsItIs()
{
    const LogCapture log;
    ChangeList::setReadWriteDefault(false);
    QVERIFY(log.text.startsWith("WARNING:  "));
    const auto list = newList();
    list->addCreated(1);
    QCOMPARE(list->sizeCreated(), std::size_t(1));
}

void tst_ChangeList::otherThreadsHaveNone()
{
    NOT_IN_STOCK("stock 1.8 crashes on threads of others");
    ChangeList *found = &current();
    std::thread([&] { found = Thread::getCurrentChangeList(); }).join();
    QVERIFY(!found);
}

void tst_ChangeList::threadAndItsBaseAgree()
{
    QCOMPARE(Thread::getCurrentChangeList(), PThreadBase::getCurrentChangeList());
    QCOMPARE(Thread::get("OSGMain"), Thread::getCurrent());
    QVERIFY(!Thread::find("nobody"));
}

void tst_ChangeList::aNewNodeIsCreatedAndItsVolumeChanged()
{
    current().clearAll();
    const NodePtr node = Node::create();
    const UInt32 id = node.getFieldContainerId();
    QCOMPARE(createdIds(), Ids { id });
    QCOMPARE(changes(), (Changes { { id, 0x4 } }));
    subRefCP(node);
}

void tst_ChangeList::setCoreReferencesTheCoreAndChangesItsParents()
{
    const NodeRefPtr node(Node::create());
    const GroupPtr core = Group::create();
    current().clearAll();
    node->setCore(core);
    QCOMPARE(referencedIds(), Ids { core.getFieldContainerId() });
    QCOMPARE(changes(), (Changes { { core.getFieldContainerId(), 0x4 } }));
}

void tst_ChangeList::addChildReferencesTheChildAndChangesItsParent()
{
    const NodeRefPtr node(Node::create());
    const NodePtr child = Node::create();
    current().clearAll();
    node->addChild(child);
    QCOMPARE(referencedIds(), Ids { child.getFieldContainerId() });
    QCOMPARE(changes(), (Changes { { child.getFieldContainerId(), 0x10 } }));
}

void tst_ChangeList::setNameAddsTheAttachmentAndChangesBoth()
{
    const NodeRefPtr node(Node::create());
    const UInt32 nodeId = node.get().getFieldContainerId();
    current().clearAll();
    setName(node.get(), "named");
    const UInt32 id = node->findAttachment(Name::getClassType()).getFieldContainerId();
    QCOMPARE(createdIds(), Ids { id });
    QCOMPARE(referencedIds(), Ids { id });
    QCOMPARE(changes(), (Changes { { id, 0x2 }, { nodeId, 0x2 }, { id, FieldBits::AllFields } }));
}

void tst_ChangeList::twoEditsAreTwoEntries()
{
    const NodeRefPtr node(Node::create());
    current().clearAll();
    endEditCP(node.get(), Node::TravMaskFieldMask);
    endEditCP(node.get(), Node::TravMaskFieldMask);
    QCOMPARE(current().sizeChanged(), std::size_t(2));
}

void tst_ChangeList::theDefaultMaskIsEverything()
{
    const NodeRefPtr node(Node::create());
    current().clearAll();
    endEditCP(node.get());
    QCOMPARE(changes().first().second, quint64(0xffffffffffffffff));
}

void tst_ChangeList::endEditNotChangedOnlyEntersTheChange()
{
    const RefPtr<FollowerPtr> follower(Follower::make());
    current().clearAll();
    endEditNotChangedCP(follower.get(), 4);
    QCOMPARE(current().sizeChanged(), std::size_t(1));
    QVERIFY(follower->masks.isEmpty());
}

void tst_ChangeList::changedOnlyLetsTheContainerFollow()
{
    const RefPtr<FollowerPtr> follower(Follower::make());
    current().clearAll();
    changedCP(follower.get(), 4, ChangedOrigin::Child);
    QCOMPARE(current().sizeChanged(), std::size_t(0));
    QCOMPARE(follower->masks, QVector<quint64> { 4 });
    QCOMPARE(follower->origins, Ids { ChangedOrigin::Child });
}

void tst_ChangeList::theListIsFilledBeforeTheContainerFollows()
{
    const RefPtr<FollowerPtr> follower(Follower::make());
    current().clearAll();
    beginEditCP(follower.get(), 4);
    QVERIFY(follower->masks.isEmpty());
    endEditCP(follower.get(), 4);
    QCOMPARE(follower->entriesSeen, 1);
    QCOMPARE(follower->origins, Ids { ChangedOrigin::External });
}

void tst_ChangeList::theEditorEditsForTheLifeOfAScope()
{
    const RefPtr<FollowerPtr> holder(Follower::make());
    const FollowerPtr follower = holder.get();
    {
        CPEdit(follower, 8);
        QVERIFY(follower->masks.isEmpty());
    }
    {
        CPEditAll(follower);
    }
    QCOMPARE(follower->masks, (QVector<quint64> { 8, FieldBits::AllFields }));
}

void tst_ChangeList::destructionIsEntered()
{
    const NodePtr node = Node::create();
    const UInt32 id = node.getFieldContainerId();
    current().clearAll();
    subRefCP(node);
    QCOMPARE(destroyedIds(), Ids { id });
    QVERIFY(releasedIds().isEmpty());
}

void tst_ChangeList::onlySurvivedReleasesAreEntered()
{
    const NodeRefPtr node(Node::create());
    addRefCP(node.get());
    current().clearAll();
    subRefCP(node.get());
    QCOMPARE(releasedIds(), Ids { node.get().getFieldContainerId() });
}

void tst_ChangeList::aReadOnlyListIgnoresEverything()
{
    const NodeRefPtr node(Node::create());
    current().clearAll();
    current().setReadOnly(true);
    endEditCP(node.get());
    setName(node.get(), "unseen");
    QVERIFY(!current().merge(current()));
    current().setReadOnly(false);
    QVERIFY(current().empty());
}

void tst_ChangeList::mergeAppendsAndSwapExchanges()
{
    current().clearAll();
    const auto list = newList();
    list->addCreated(7);
    current().addCreated(6);
    QVERIFY(current().merge(*list));
    QCOMPARE(createdIds(), (Ids { 6, 7 }));
    current().swap(*list);
    QCOMPARE(createdIds(), Ids { 7 });
    current().applyAndClear();
    QVERIFY(current().empty());
}

void tst_ChangeList::aListCanBeGivenAnAspect()
{
    const auto list = newList();
    list->setAspect(1);
    QCOMPARE(list->getAspect(), UInt32(1));
}

void tst_ChangeList::afterTheEndThereIsNone()
{
    NOT_IN_STOCK("stock 1.8 crashes where a thread has no change list");
    const NodePtr node = Node::create();
    QVERIFY(osgExit());
    QVERIFY(!Thread::getCurrentChangeList());
    endEditCP(node);
    subRefCP(node);
    QVERIFY(node == NullFC);
}

QTEST_APPLESS_MAIN(tst_ChangeList)
#include "tst_changelist.moc"
