#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSingleTypeGraphOp.h>
#include <OpenSG/OSGTransform.h>

#include <QtTest>

#include <memory>

using namespace osg;

namespace {

typedef SingleTypeGraphOp<Transform> TransformOp;

/// The parts of an operation that these tests have no use for.
template <class Base> class TestOp : public Base
{
public:
    using Base::Base;
    void setParams(const std::string params) override { parameters = params; }
    std::string usage() override { return "no parameters"; }

    std::string parameters;
    QStringList seen;
};

class NotingOp : public TestOp<GraphOp>
{
public:
    using TestOp::TestOp;
    GraphOp *create() override { return new NotingOp(getName().c_str()); }

    Action::ResultE answer = Action::Continue;

protected:
    Action::ResultE traverseEnter(NodePtr &node) override
    {
        seen.append(getName(node));
        return answer;
    }
    Action::ResultE traverseLeave(NodePtr &, Action::ResultE res) override { return res; }

private:
    static const char *getName(const NodePtr &node) { return osg::getName(node); }
    const std::string &getName() { return GraphOp::getName(); }
};

class ByValueOp : public TestOp<TransformOp>
{
public:
    GraphOp *create() override { return new ByValueOp; }

protected:
    bool travNodeEnter(NodePtr node) override
    {
        seen.append(QString("+") + osg::getName(node));
        return false;
    }
    bool travNodeLeave(NodePtr node) override
    {
        seen.append(QString("-") + osg::getName(node));
        return false;
    }
};

class Parameters : public NotingOp
{
public:
    using GraphOp::ParamSet;
};

NodePtr named(NodePtr node, const char *name)
{
    setName(node, name);
    return node;
}

} // namespace

class tst_GraphOp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }
    void init();
    void cleanup() { clearRefCP(m_root); }

    void anOperationSeesEveryNode();
    void quittingMakesTheTraversalFalse();
    void aNullRootIsAnEmptyTree();
    void singleTypeCallbacksTakeNodesByValue();
    void nodesWithoutCoreArePassedOver();
    void derivedCoresCount();
    void leavingANodeOfTheTypeContinues();
    void excludedNodesAreRemembered();
    void parametersAreKeysAndFlags();
    void parametersSurviveStrayBlanks();
    void unusedParametersAreTold();
    void theFactoryMakesOperationsByName();
    void aSecondRegistrationReplacesTheFirst();
    void unknownNamesAreListedWithNull();
    void noNameIsNotListed();

private:
    NodePtr m_root;
};

void tst_GraphOp::init()
{
    m_root = named(makeCoredNode<Group>(), "r");
    addRefCP(m_root);
    const NodePtr outer = named(makeCoredNode<Transform>(), "outer");
    outer->addChild(named(makeCoredNode<Transform>(), "inner"));
    m_root->addChild(outer);
    m_root->addChild(named(Node::create(), "bare"));
}

void tst_GraphOp::anOperationSeesEveryNode()
{
    NotingOp op;
    QVERIFY(op.traverse(m_root));
    QCOMPARE(op.seen.join(' '), QString("r outer inner bare"));
}

void tst_GraphOp::quittingMakesTheTraversalFalse()
{
    NotingOp op;
    op.answer = Action::Quit;
    QVERIFY(!op.traverse(m_root));
    QCOMPARE(op.seen.join(' '), QString("r"));
    op.answer = Action::Skip;
    QVERIFY(op.traverse(m_root));
}

void tst_GraphOp::aNullRootIsAnEmptyTree()
{
    NOT_IN_STOCK("stock 1.8 crashes at a null root");
    NodePtr null;
    NotingOp op;
    ByValueOp single;
    QVERIFY(op.traverse(null));
    QVERIFY(single.traverse(null));
    QVERIFY(op.seen.isEmpty() && single.seen.isEmpty());
}

void tst_GraphOp::singleTypeCallbacksTakeNodesByValue()
{
    ByValueOp op;
    QVERIFY(op.traverse(m_root));
    QCOMPARE(op.seen.join(' '), QString("+outer +inner -inner -outer"));
}

void tst_GraphOp::nodesWithoutCoreArePassedOver()
{
    NOT_IN_STOCK("stock 1.8 crashes at a node without core");
    ByValueOp op;
    NodePtr bare = m_root->getChild(1);
    QVERIFY(op.traverse(bare));
    QVERIFY(op.seen.isEmpty());
}

void tst_GraphOp::derivedCoresCount()
{
    struct GroupOp : TestOp<SingleTypeGraphOp<Group>>
    {
        GraphOp *create() override { return new GroupOp; }
        bool travNodeEnter(NodePtr node) override
        {
            seen.append(osg::getName(node));
            return true;
        }
        bool travNodeLeave(NodePtr) override { return true; }
    } op;
    op.traverse(m_root);
    QCOMPARE(op.seen.join(' '), QString("r outer inner"));
}

void tst_GraphOp::leavingANodeOfTheTypeContinues()
{
    struct QuittingOp : ByValueOp
    {
        Action::ResultE traverseEnter(NodePtr &) override { return Action::Quit; }
    } op;
    QVERIFY(op.traverse(m_root));
    op.seen.clear();
    NodePtr outer = m_root->getChild(0);
    QVERIFY(op.traverse(outer));
    QCOMPARE(op.seen, QStringList { "-outer" });
}

void tst_GraphOp::excludedNodesAreRemembered()
{
    NotingOp op;
    NodePtr outer = m_root->getChild(0);
    NodePtr bare = m_root->getChild(1);
    op.addToExcludeList(outer);
    op.addToExcludeList("bare");
    QVERIFY(op.isInExcludeList(outer) && op.isInExcludeListNodes(outer));
    QVERIFY(op.isInExcludeList(bare) && op.isInExcludeListNames("bare"));
    QVERIFY(!op.isInExcludeList(m_root));
    op.removeFromExcludeList(outer);
    op.removeFromExcludeList("bare");
    QVERIFY(!op.isInExcludeList(outer) && !op.isInExcludeList(bare));
}

void tst_GraphOp::parametersAreKeysAndFlags()
{
    Parameters::ParamSet params("Size=3 flag name=Some weight=0.5 off=false");
    UInt32 size = 0;
    UInt16 small = 0;
    bool flag = false;
    bool off = true;
    std::string name;
    Real32 weight = 0.f;
    QVERIFY(params("size", size) && params("SIZE", small) && params("flag", flag));
    QVERIFY(params("name", name) && params("weight", weight) && params("off", off));
    QCOMPARE(size, 3u);
    QCOMPARE(int(small), 3);
    QVERIFY(flag && !off);
    QCOMPARE(name, std::string("Some"));
    QCOMPARE(weight, 0.5f);
}

void tst_GraphOp::parametersSurviveStrayBlanks()
{
    NOT_IN_STOCK("two blanks in a row may keep stock 1.8 busy for ever");
    Parameters::ParamSet params("  a=1   b  ");
    bool b = false;
    std::string a;
    QVERIFY(params("b", b) && params("a", a));
    QVERIFY(!params("", a));
    QCOMPARE(a, std::string("1"));
}

void tst_GraphOp::unusedParametersAreTold()
{
    Parameters::ParamSet params("a b=2 c");
    bool a = false;
    params("a", a);
    params.markUsed("C");
    params.markUsed("nobody");
    QCOMPARE(params.getUnusedParams(), std::string("b"));
}

void tst_GraphOp::theFactoryMakesOperationsByName()
{
    NotingOp prototype("Noting");
    GraphOpFactory::the().registerOp(&prototype);
    const std::unique_ptr<GraphOp> made(GraphOpFactory::the().create("Noting"));
    QVERIFY(made && made.get() != &prototype);
    GraphOpFactory::the().unRegisterOp(&prototype);
    QVERIFY(!GraphOpFactory::the().create("Noting"));
}

void tst_GraphOp::aSecondRegistrationReplacesTheFirst()
{
    NotingOp first("Op");
    ByValueOp second;
    second.setName("Op");
    GraphOpFactory::the().registerOp(&first);
    GraphOpFactory::the().registerOp(&second);
    const std::unique_ptr<GraphOp> made(GraphOpFactory::the().create("Op"));
    QVERIFY(dynamic_cast<ByValueOp *>(made.get()));
    GraphOpFactory::the().unRegisterOp("Op");
}

void tst_GraphOp::unknownNamesAreListedWithNull()
{
    QVERIFY(!GraphOpFactory::the().create("nope"));
    const auto found = std::find_if(GraphOpFactory::the().begin(), GraphOpFactory::the().end(),
        [](const auto &entry) { return entry.first == "nope"; });
    QVERIFY(found != GraphOpFactory::the().end());
    QVERIFY(!found->second);
}

void tst_GraphOp::noNameIsNotListed()
{
    NOT_IN_STOCK("stock 1.8 ends the process where a name is NULL");
    GraphOpFactory &factory = GraphOpFactory::the();
    const auto before = std::distance(factory.begin(), factory.end());
    QVERIFY(!factory.create(nullptr));
    factory.unRegisterOp(static_cast<const char *>(nullptr));
    QCOMPARE(std::distance(factory.begin(), factory.end()), before);
}

QTEST_APPLESS_MAIN(tst_GraphOp)
#include "tst_graphop.moc"
