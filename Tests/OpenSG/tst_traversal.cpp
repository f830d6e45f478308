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
    void callbacksMayTakeNodesInAnyForm_data();
    void callbacksMayTakeNodesInAnyForm();
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

Action::ResultE note(const NodePtr &node)
{
    visited.append(getName(node));
    return Action::Continue;
}

Action::ResultE enterByValue(NodePtr node)
{
    return note(node);
}
Action::ResultE enterByReference(NodePtr &node)
{
    return note(node);
}
Action::ResultE enterByConstReference(const NodePtr &node)
{
    return note(node);
}
Action::ResultE leaveByValue(NodePtr, Action::ResultE result)
{
    return result;
}
Action::ResultE leaveByReference(NodePtr &, Action::ResultE result)
{
    return result;
}
Action::ResultE leaveByConstReference(const NodePtr &, Action::ResultE result)
{
    return result;
}

struct Functors
{
    TraverseEnterFunctor enter;
    TraverseLeaveFunctor leave;
};

TraverseEnterFunctor noting()
{
    visited.clear();
    return osgTypedFunctionFunctor1CPtrRef<Action::ResultE, NodePtr>(enterByReference);
}

} // namespace

Q_DECLARE_METATYPE(Functors)
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
    const auto result
        = traverse(m_root, noting(), TraverseLeaveFunctor([](NodePtr &node, Action::ResultE) {
              return qstrcmp(getName(node), "a") == 0 ? Action::Quit : Action::Continue;
          }));
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

void tst_Traversal::callbacksMayTakeNodesInAnyForm_data()
{
    typedef Action::ResultE Result;
    QTest::addColumn<Functors>("functors");
    QTest::newRow("by value") << Functors { osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(
                                                enterByValue),
        osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(leaveByValue) };
    QTest::newRow("by reference") << Functors { osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(
                                                    enterByReference),
        osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(leaveByReference) };
    QTest::newRow("by reference to const")
        << Functors { osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(enterByConstReference),
               osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(leaveByConstReference) };
}

void tst_Traversal::callbacksMayTakeNodesInAnyForm()
{
    QFETCH(Functors, functors);
    visited.clear();
    traverse(m_root, functors.enter, functors.leave);
    QCOMPARE(visited.join(' '), QString("r a aa ab b"));
}

void tst_Traversal::aCallbackMayTakeAChildAway()
{
    visited.clear();
    traverse(m_root, TraverseEnterFunctor([](NodePtr &node) {
        if (qstrcmp(getName(node), "a") == 0) {
            node->subChild(0u);
        }
        return note(node);
    }));
    QCOMPARE(visited.join(' '), QString("r a ab b"));
}

QTEST_APPLESS_MAIN(tst_Traversal)
#include "tst_traversal.moc"
