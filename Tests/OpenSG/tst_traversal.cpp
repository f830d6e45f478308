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
    void nullChildrenArePassedOver();
    void coreLessNodesAreVisited();
    void aCallbackMayTakeAChildAway();
    void methodsMayBeInherited();
    void methodsMayShareTheirName();
    void aCallbackMayTakeAwayWhereItIs_data();
    void aCallbackMayTakeAwayWhereItIs();
    void anInnerTraversalMayTakeAwayWhereTheOuterOneIs();
    void theChildBehindOneThatTakesItselfAwayIsNotVisited();

private:
    Action::ResultE enter(NodePtr &node);
    Action::ResultE leave(NodePtr &node, Action::ResultE result);
    Action::ResultE traverseFrom(const NodePtr &node);
    void takeAway(const QByteArray &name);

    NodePtr m_root;
    QMap<QByteArray, NodePtr> m_nodes;
    QByteArray m_stopAt;
    Action::ResultE m_stopWith = Action::Continue;
    QByteArray m_takeAt;
    QByteArray m_taken;
    QByteArray m_traverseAt;
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

/// Visitors whose methods are inherited or share a name.
struct Visitor
{
    Action::ResultE enter(NodePtr &node) { return note(node); }
    Action::ResultE leave(NodePtr &, Action::ResultE result) { return result; }
    Action::ResultE visit(NodePtr &node) { return note(node); }
    Action::ResultE visit(const NodePtr &) { return Action::Quit; }
    Action::ResultE visit(NodePtr &, Action::ResultE result) { return result; }
    Action::ResultE visit(int) { return Action::Quit; }
};

struct DerivedVisitor : Visitor
{
};

TraverseEnterFunctor noting()
{
    visited.clear();
    return osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(note);
}

} // namespace

Q_DECLARE_METATYPE(osg::Action::ResultE)

void tst_Traversal::init()
{
    for (const char *name : { "r", "a", "aa", "ab", "b" }) {
        m_nodes[name] = named(name);
    }
    m_root = m_nodes["r"];
    addRefCP(m_root);
    m_nodes["a"]->addChild(m_nodes["aa"]);
    m_nodes["a"]->addChild(m_nodes["ab"]);
    m_root->addChild(m_nodes["a"]);
    m_root->addChild(m_nodes["b"]);
    m_trace.clear();
    m_stopAt.clear();
    m_takeAt.clear();
    m_traverseAt.clear();
}

Action::ResultE tst_Traversal::enter(NodePtr &node)
{
    const QByteArray name = getName(node);
    m_trace.append(QString("E(%1)").arg(QString(name)));
    if (m_takeAt == name) {
        takeAway(m_taken);
    }
    if (m_traverseAt == name) {
        m_traverseAt.clear();
        traverseFrom(m_root->getChild(1));
    }
    return m_stopAt == name ? m_stopWith : Action::Continue;
}

Action::ResultE tst_Traversal::leave(NodePtr &node, Action::ResultE result)
{
    m_trace.append(QString("L(%1,%2)").arg(getName(node)).arg(int(result)));
    return result;
}

Action::ResultE tst_Traversal::traverseFrom(const NodePtr &node)
{
    return traverse(node,
        osgTypedMethodFunctor1ObjPtrCPtrRef<Action::ResultE, tst_Traversal, NodePtr>(
            this, &tst_Traversal::enter),
        osgTypedMethodFunctor2ObjPtrCPtrRef<Action::ResultE, tst_Traversal, NodePtr,
            Action::ResultE>(this, &tst_Traversal::leave));
}

void tst_Traversal::takeAway(const QByteArray &name)
{
    if (const NodePtr parent = m_nodes[name]->getParent()) {
        parent->subChild(m_nodes[name]);
    } else {
        clearRefCP(m_root);
    }
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
    const Action::ResultE result = traverseFrom(m_root);
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

void tst_Traversal::nullChildrenArePassedOver()
{
    NOT_IN_STOCK("stock 1.8 crashes at a null node");
    m_root->getMFChildren()->insert(m_root->getMFChildren()->begin(), NodePtr());
    m_root->getMFChildren()->push_back(NodePtr());
    traverse(m_root, noting());
    QCOMPARE(visited.join(' '), QString("r a aa ab b"));
    m_root->updateVolume();
    QVERIFY(m_root->getVolume().isValid());
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

void tst_Traversal::aCallbackMayTakeAwayWhereItIs_data()
{
    QTest::addColumn<QByteArray>("at");
    QTest::addColumn<QByteArray>("taken");
    QTest::addColumn<QString>("trace");
    QTest::newRow("a leaf")
        << QByteArray("ab") << QByteArray("ab")
        << "E(r) E(a) E(aa) L(aa,0) E(ab) L(a,0) E(b) E(ba) L(ba,0) L(b,0) L(r,0)";
    QTest::newRow("a node with children") << QByteArray(
        "b") << QByteArray("b") << "E(r) E(a) E(aa) L(aa,0) E(ab) L(ab,0) L(a,0) E(b) L(r,0)";
    QTest::newRow("its parent") << QByteArray("aa") << QByteArray("a") << "E(r) E(a) E(aa) L(r,0)";
    QTest::newRow("everything") << QByteArray("aa") << QByteArray("r") << "E(r) E(a) E(aa)";
}

void tst_Traversal::aCallbackMayTakeAwayWhereItIs()
{
    NOT_IN_STOCK("stock 1.8 goes on with nodes that are gone");
    QFETCH(QByteArray, at);
    QFETCH(QByteArray, taken);
    m_root->getChild(1)->addChild(named("ba"));
    m_takeAt = at;
    m_taken = taken;
    QCOMPARE(traverseFrom(m_root), Action::Continue);
    QTEST(m_trace.join(' '), "trace");
}

void tst_Traversal::anInnerTraversalMayTakeAwayWhereTheOuterOneIs()
{
    NOT_IN_STOCK("stock 1.8 goes on with nodes that are gone");
    m_traverseAt = "aa";
    m_takeAt = "b";
    m_taken = "a";
    QCOMPARE(traverseFrom(m_root), Action::Continue);
    QCOMPARE(m_trace.join(' '), QString("E(r) E(a) E(aa) E(b) L(b,0) L(r,0)"));
}

// The next one moves up to its place.
void tst_Traversal::theChildBehindOneThatTakesItselfAwayIsNotVisited()
{
    NOT_IN_STOCK("stock 1.8 goes on with nodes that are gone");
    m_takeAt = m_taken = "aa";
    QCOMPARE(traverseFrom(m_root), Action::Continue);
    QCOMPARE(m_trace.join(' '), QString("E(r) E(a) E(aa) L(a,0) E(b) L(b,0) L(r,0)"));
}

void tst_Traversal::methodsMayBeInherited()
{
    visited.clear();
    DerivedVisitor visitor;
    traverse(m_root,
        osgTypedMethodFunctor1ObjPtrCPtrRef<Action::ResultE, DerivedVisitor, NodePtr>(
            &visitor, &DerivedVisitor::enter),
        osgTypedMethodFunctor2ObjPtrCPtrRef<Action::ResultE, DerivedVisitor, NodePtr,
            Action::ResultE>(&visitor, &DerivedVisitor::leave));
    QCOMPARE(visited.join(' '), QString("r a aa ab b"));
}

void tst_Traversal::methodsMayShareTheirName()
{
    visited.clear();
    Visitor visitor;
    traverse(m_root,
        osgTypedMethodFunctor1ObjPtrCPtrRef<Action::ResultE, Visitor, NodePtr>(
            &visitor, &Visitor::visit),
        osgTypedMethodFunctor2ObjPtrCPtrRef<Action::ResultE, Visitor, NodePtr, Action::ResultE>(
            &visitor, &Visitor::visit));
    QCOMPARE(visited.join(' '), QString("r a aa ab b"));
}

QTEST_APPLESS_MAIN(tst_Traversal)
#include "tst_traversal.moc"
