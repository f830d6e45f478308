#include "NotInStock.h"

#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QtTest>

using namespace osg;

/// The tree is r with the children a, which has aa and ab, and b. Traces name what was entered
/// (E) and left (L, with the result so far).
class tst_Traversal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }
    void init();
    void cleanup() { clearRefCP(m_root); }

    void tracesAreAsExpected_data();
    void tracesAreAsExpected();
    void leavingDecides();
    void enteringAloneVisitsEverything();
    void listsAreVisitedInOrder();
    void nullNodesArePassedOver();
    void coreLessNodesAreVisited();
    void aCallbackMayTakeAChildAway();

private:
    Action::ResultE enter(NodePtr &node);
    Action::ResultE leave(NodePtr &node, Action::ResultE result);

    NodePtr m_root;
    QByteArray m_stopAt;
    Action::ResultE m_stopWith = Action::Continue;
    QStringList m_trace;
};

namespace {

NodePtr named(const char *name)
{
    const NodePtr node = makeCoredNode<Group>();
    setName(node, name);
    return node;
}

QStringList visited;

Action::ResultE note(NodePtr &node)
{
    visited.append(getName(node));
    return Action::Continue;
}

Action::ResultE quitBehindA(NodePtr &node, Action::ResultE)
{
    return qstrcmp(getName(node), "a") == 0 ? Action::Quit : Action::Continue;
}

Action::ResultE takeFirstChildOfA(NodePtr &node)
{
    if (qstrcmp(getName(node), "a") == 0) {
        node->subChild(0u);
    }
    return note(node);
}

TraverseEnterFunctor noting()
{
    visited.clear();
    return osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(note);
}

} // namespace

Q_DECLARE_METATYPE(osg::Action::ResultE)

void tst_Traversal::init()
{
    m_root = named("r");
    addRefCP(m_root);
    const NodePtr a = named("a");
    a->addChild(named("aa"));
    a->addChild(named("ab"));
    m_root->addChild(a);
    m_root->addChild(named("b"));
    m_trace.clear();
}

Action::ResultE tst_Traversal::enter(NodePtr &node)
{
    m_trace.append(QString("E(%1)").arg(getName(node)));
    return m_stopAt == getName(node) ? m_stopWith : Action::Continue;
}

Action::ResultE tst_Traversal::leave(NodePtr &node, Action::ResultE result)
{
    m_trace.append(QString("L(%1,%2)").arg(getName(node)).arg(int(result)));
    return result;
}

void tst_Traversal::tracesAreAsExpected_data()
{
    QTest::addColumn<QByteArray>("stopAt");
    QTest::addColumn<Action::ResultE>("stopWith");
    QTest::addColumn<QString>("trace");
    QTest::newRow("everything continues")
        << QByteArray() << Action::Continue
        << "E(r) E(a) E(aa) L(aa,0) E(ab) L(ab,0) L(a,0) E(b) L(b,0) L(r,0)";
    QTest::newRow("a skips") << QByteArray("a") << Action::Skip
                             << "E(r) E(a) L(a,0) E(b) L(b,0) L(r,0)";
    QTest::newRow("a quits") << QByteArray("a") << Action::Quit << "E(r) E(a) L(a,2) L(r,2)";
    QTest::newRow("aa quits") << QByteArray("aa") << Action::Quit
                              << "E(r) E(a) E(aa) L(aa,2) L(a,2) L(r,2)";
}

void tst_Traversal::tracesAreAsExpected()
{
    QFETCH(QByteArray, stopAt);
    QFETCH(Action::ResultE, stopWith);
    m_stopAt = stopAt;
    m_stopWith = stopWith;
    const Action::ResultE result = traverse(m_root,
        osgTypedMethodFunctor1ObjPtrCPtrRef<Action::ResultE, tst_Traversal, NodePtr>(
            this, &tst_Traversal::enter),
        osgTypedMethodFunctor2ObjPtrCPtrRef<Action::ResultE, tst_Traversal, NodePtr,
            Action::ResultE>(this, &tst_Traversal::leave));
    QTEST(m_trace.join(' '), "trace");
    QCOMPARE(result, stopWith == Action::Quit ? Action::Quit : Action::Continue);
}

void tst_Traversal::leavingDecides()
{
    const auto result = traverse(m_root, noting(),
        osgTypedFunctionFunctor2CPtrRef<Action::ResultE, NodePtr, Action::ResultE>(quitBehindA));
    QCOMPARE(visited.join(' '), QString("r a aa ab"));
    QCOMPARE(result, Action::Continue);
}

void tst_Traversal::enteringAloneVisitsEverything()
{
    QCOMPARE(traverse(m_root, noting()), Action::Continue);
    QCOMPARE(visited.join(' '), QString("r a aa ab b"));
}

void tst_Traversal::listsAreVisitedInOrder()
{
    std::vector<NodePtr> list { m_root->getChild(1), m_root->getChild(0) };
    QCOMPARE(traverse(list, noting()), Action::Continue);
    QCOMPARE(visited.join(' '), QString("b a aa ab"));
}

void tst_Traversal::nullNodesArePassedOver()
{
    NOT_IN_STOCK("stock 1.8 crashes at a null node");
    std::vector<NodePtr> list { NodePtr(), m_root->getChild(1) };
    QCOMPARE(traverse(list, noting()), Action::Continue);
    QCOMPARE(visited.join(' '), QString("b"));
    QCOMPARE(traverse(NodePtr(), noting()), Action::Continue);
}

void tst_Traversal::coreLessNodesAreVisited()
{
    m_root->getChild(1)->setCore(NullFC);
    traverse(m_root, noting());
    QCOMPARE(visited.join(' '), QString("r a aa ab b"));
}

void tst_Traversal::aCallbackMayTakeAChildAway()
{
    visited.clear();
    traverse(m_root, osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(takeFirstChildOfA));
    QCOMPARE(visited.join(' '), QString("r a ab b"));
}

QTEST_APPLESS_MAIN(tst_Traversal)
#include "tst_traversal.moc"
