#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGBoxVolumeFields.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSingleTypeGraphOp.h>
#include <OpenSG/OSGThread.h>

#include <QtTest>

#include <memory>

using namespace osg;

/// What this library has and stock 1.8 lacks, or has in a form that is not documented. Tests of
/// anything else compile against both; this one is built with ours only.
class tst_Additions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { clearRefCP(m_root); }

    void theIgnoreSwitchKeepsContainersFromFollowing();
    void pointerFieldsTellTheirTargets();
    void aFieldOfValuesRefersToNoContainer();
    void pointersAreStoredWhateverTheirType();
    void boxVolumesAreFieldTypes_data();
    void boxVolumesAreFieldTypes();
    void aBoxVolumeFieldReadsSixNumbers();
    void operationsMayTakeReferencesToConst();
    void singleTypeOperationsMayTakeReferencesToConst();
    void bothFormsOfACallbackAreCalledOnce();
    void functionsOfAnyFormVisitNodes_data();
    void functionsOfAnyFormVisitNodes();
    void lambdasVisitNodes();
    void constHandlesOnlyRead();
    void constHandlesComeFromHandlesAndCasts();

private:
    NodePtr m_root;
};

namespace {

typedef SingleTypeGraphOp<Transform> TransformOp;

template <class Base> class NotingOp : public Base
{
public:
    void setParams(const std::string) override { }
    std::string usage() override { return "no parameters"; }

    QStringList seen;

protected:
    bool note(const NodePtr &node)
    {
        seen.append(osg::getName(node));
        return true;
    }
};

class ConstOp : public NotingOp<GraphOp>
{
public:
    GraphOp *create() override { return new ConstOp; }

protected:
    Action::ResultE traverseEnter(const NodePtr &node) override
    {
        note(node);
        return Action::Continue;
    }
};

class ConstTransformOp : public NotingOp<TransformOp>
{
public:
    GraphOp *create() override { return new ConstTransformOp; }

protected:
    bool travNodeEnter(const NodePtr &node) override { return note(node); }
    bool travNodeLeave(const NodePtr &node) override { return note(node); }
};

class BothFormsOp : public NotingOp<TransformOp>
{
public:
    GraphOp *create() override { return new BothFormsOp; }

protected:
    bool travNodeEnter(NodePtr node) override { return note(node); }
    bool travNodeEnter(const NodePtr &node) override { return note(node); }
};

QStringList visited;

Action::ResultE enter(const NodePtr &node)
{
    visited.append(getName(node));
    return Action::Continue;
}

Action::ResultE enterByValue(NodePtr node)
{
    return enter(node);
}

Action::ResultE leave(const NodePtr &, Action::ResultE result)
{
    return result;
}

Action::ResultE leaveByValue(NodePtr, Action::ResultE result)
{
    return result;
}

struct Visitor
{
    Action::ResultE enter(const NodePtr &node) const { return ::enter(node); }
    Action::ResultE leave(NodePtr, Action::ResultE result) { return result; }
};

struct DerivedVisitor : Visitor
{
} visitor;

struct Functors
{
    TraverseEnterFunctor enter;
    TraverseLeaveFunctor leave;
};

} // namespace

Q_DECLARE_METATYPE(Functors)

void tst_Additions::initTestCase()
{
    ChangeList::setReadWriteDefault();
    osgInit(0, nullptr);
}

void tst_Additions::init()
{
    visited.clear();
    m_root = makeCoredNode<Group>();
    addRefCP(m_root);
    setName(m_root, "root");
    const NodePtr child = makeCoredNode<Transform>();
    setName(child, "child");
    m_root->addChild(child);
}

void tst_Additions::theIgnoreSwitchKeepsContainersFromFollowing()
{
    const RefPtr<ComponentTransformPtr> transform(ComponentTransform::create());
    ChangeList &changes = *Thread::getCurrentChangeList();
    transform->setTranslation(Vec3f(1, 2, 3));
    changes.clearAll();
    QVERIFY(!FieldContainerPtr::isIgnoreChanged());
    FieldContainerPtr::setIgnoreChanged(true);
    endEditCP(transform.get(), ComponentTransform::TranslationFieldMask);
    changedCP(transform.get(), ComponentTransform::TranslationFieldMask);
    FieldContainerPtr::setIgnoreChanged(false);
    QCOMPARE(transform->getMatrix(), Matrix::identity());
    QCOMPARE(changes.sizeChanged(), std::size_t(1));
}

void tst_Additions::pointerFieldsTellTheirTargets()
{
    const Field *children = m_root->getField("children");
    QVERIFY(children->getFieldContainer(0) == m_root->getChild(0));
    QVERIFY(children->getFieldContainer(1) == NullFC);
    QVERIFY(m_root->getField("core")->getFieldContainer() == m_root->getCore());
    QVERIFY(m_root->getField("core")->getFieldContainer(1) == NullFC);
    QVERIFY(m_root->getField("parent")->getFieldContainer() == NullFC);
}

void tst_Additions::aFieldOfValuesRefersToNoContainer()
{
    QVERIFY(!SFInt32(1).getFieldContainer());
    QVERIFY(!MFInt32(3).getFieldContainer(2));
}

void tst_Additions::pointersAreStoredWhateverTheirType()
{
    SFNodePtr node;
    node.pushFieldContainer(m_root->getCore());
    QVERIFY(node.getValue() == NullFC);
    node.pushFieldContainer(m_root);
    QVERIFY(node.getValue() == m_root);
    MFNodePtr nodes;
    nodes.pushFieldContainer(m_root);
    nodes.pushFieldContainer(NullFC);
    QCOMPARE(nodes.getSize(), UInt32(2));
}

void tst_Additions::boxVolumesAreFieldTypes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("one") << QByteArray("SFBoxVolume");
    QTest::newRow("many") << QByteArray("MFBoxVolume");
}

void tst_Additions::boxVolumesAreFieldTypes()
{
    QFETCH(QByteArray, name);
    const std::unique_ptr<Field> field(FieldFactory::the().createField(name.constData()));
    QVERIFY(field);
    QCOMPARE(field->getContentType().getCName(), "BoxVolume");
    QCOMPARE(field->getContentType().getCParentName(), "BaseType");
}

void tst_Additions::aBoxVolumeFieldReadsSixNumbers()
{
    SFBoxVolume field;
    std::string text;
    field.pushValueByStr("0 0 0 1 2 3");
    QCOMPARE(field.getValueByStr(text),
        std::string("0.000000e+00 0.000000e+00 0.000000e+00 "
                    "1.000000e+00 2.000000e+00 3.000000e+00"));
    field.pushValueByStr("1 2 3 4");
    QCOMPARE(field.getValueByStr(text),
        std::string("0.000000e+00 0.000000e+00 0.000000e+00 "
                    "0.000000e+00 0.000000e+00 0.000000e+00"));
}

void tst_Additions::operationsMayTakeReferencesToConst()
{
    ConstOp op;
    QVERIFY(op.traverse(m_root));
    QCOMPARE(op.seen, (QStringList { "root", "child" }));
}

void tst_Additions::singleTypeOperationsMayTakeReferencesToConst()
{
    ConstTransformOp op;
    QVERIFY(op.traverse(m_root));
    QCOMPARE(op.seen, (QStringList { "child", "child" }));
}

void tst_Additions::bothFormsOfACallbackAreCalledOnce()
{
    BothFormsOp op;
    QVERIFY(op.traverse(m_root));
    QCOMPARE(op.seen, QStringList { "child" });
}

void tst_Additions::functionsOfAnyFormVisitNodes_data()
{
    typedef Action::ResultE Result;
    QTest::addColumn<Functors>("functors");
    QTest::newRow("by value") << Functors { osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(
                                                enterByValue),
        osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(leaveByValue) };
    QTest::newRow("by reference to const")
        << Functors { osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(enter),
               osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(leave) };
    QTest::newRow("methods") << Functors {
        osgTypedMethodFunctor1ObjPtrCPtrRef<Result, DerivedVisitor, NodePtr>(
            &visitor, &DerivedVisitor::enter),
        osgTypedMethodFunctor2ObjPtrCPtrRef<Result, DerivedVisitor, NodePtr, Result>(
            &visitor, &DerivedVisitor::leave)
    };
}

void tst_Additions::functionsOfAnyFormVisitNodes()
{
    QFETCH(Functors, functors);
    traverse(m_root, functors.enter, functors.leave);
    QCOMPARE(visited, (QStringList { "root", "child" }));
}

void tst_Additions::lambdasVisitNodes()
{
    QStringList names;
    traverse(m_root, TraverseEnterFunctor([&](NodePtr &node) {
        names.append(getName(node));
        return Action::Continue;
    }));
    QCOMPARE(names, (QStringList { "root", "child" }));
}

void tst_Additions::constHandlesOnlyRead()
{
    typedef ConstFCPtr<ConstFieldContainerPtr, Group> ConstGroupPtr;
    QVERIFY((std::is_same_v<decltype(*ConstGroupPtr()), const Group &>));
    QVERIFY((std::is_same_v<decltype(*ConstFieldContainerPtr()), const FieldContainer &>));
    QVERIFY((!std::is_convertible_v<ConstGroupPtr, GroupPtr>));
}

void tst_Additions::constHandlesComeFromHandlesAndCasts()
{
    typedef ConstFCPtr<ConstFieldContainerPtr, Group> ConstGroupPtr;
    const RefPtr<TransformPtr> transform(Transform::create());
    const ConstFieldContainerPtr any(transform.get());
    const ConstGroupPtr group(transform.get());
    QVERIFY(any == transform.get() && group == any);
    QCOMPARE(group->getTypeName(), "Transform");
    QVERIFY(ConstGroupPtr::dcast(any) == group);
    QVERIFY((ConstFCPtr<ConstFieldContainerPtr, Node>::dcast(any)) == NullFC);
    QVERIFY(ConstGroupPtr() == NullFC && !ConstGroupPtr(NullFC));
}

QTEST_APPLESS_MAIN(tst_Additions)
#include "tst_additions.moc"
