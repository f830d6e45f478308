// Measures the scene-graph runtime: making, visiting and destroying nodes, writing and reading
// scene files, and values as text. Each case is compared with the least work that could do the
// same.

#include "BenchClock.h"
#include "BenchTable.h"

#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGSceneFileHandler.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>
#include <unistd.h>

using namespace osg;

namespace {

constexpr int nodeCount = 1000000;
constexpr int fileNodeCount = 100000;
constexpr int valueCount = 1000000;
constexpr int childrenPerNode = 10;

constexpr double nanosecondsPerMillisecond = 1e6;

double perItem(double milliseconds, int items)
{
    return milliseconds * nanosecondsPerMillisecond / items;
}

double megabytesPerSecond(std::size_t bytes, double milliseconds)
{
    return double(bytes) / 1e6 / (milliseconds / 1e3);
}

double residentBytes()
{
    long pages = 0;
    long resident = 0;
    if (std::FILE *file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &pages, &resident) != 2) {
            resident = 0;
        }
        std::fclose(file);
    }
    return double(resident) * double(sysconf(_SC_PAGESIZE));
}

/// A minimal scene node: a core and a list of children.
struct PlainNode
{
    struct Core
    {
        virtual ~Core() = default;
        int kind = 0;
    };

    std::vector<std::unique_ptr<PlainNode>> children;
    std::unique_ptr<Core> core = std::make_unique<Core>();
};

std::unique_ptr<PlainNode> makePlainTree(int count)
{
    std::vector<PlainNode *> nodes;
    auto root = std::make_unique<PlainNode>();
    nodes.push_back(root.get());
    for (int i = 1; i < count; ++i) {
        auto &siblings = nodes[std::size_t((i - 1) / childrenPerNode)]->children;
        siblings.push_back(std::make_unique<PlainNode>());
        nodes.push_back(siblings.back().get());
    }
    return root;
}

int countPlain(const PlainNode &node)
{
    int count = node.core->kind + 1;
    for (const auto &child : node.children) {
        count += countPlain(*child);
    }
    return count;
}

NodePtr makeTree(int count, NodePtr (*makeNode)(int))
{
    std::vector<NodePtr> nodes { makeNode(0) };
    for (int i = 1; i < count; ++i) {
        nodes.push_back(makeNode(i));
        nodes[std::size_t((i - 1) / childrenPerNode)]->addChild(nodes.back());
    }
    return nodes.front();
}

NodePtr makeGroupNode(int)
{
    return makeCoredNode<Group>();
}

NodePtr makeInstances(int count)
{
    const NodePtr root = makeCoredNode<Group>();
    for (int i = 1; i < count; ++i) {
        root->addChild(makeNodeFor(root->getCore()));
    }
    return root;
}

// Like nodes of real scenes: transforms and groups in turn, and a name for every fifth.
NodePtr makeSceneNode(int index)
{
    const bool isPlaced = index % 2 != 0;
    const NodePtr node = isPlaced ? makeCoredNode<Transform>() : makeCoredNode<Group>();
    if (isPlaced) {
        TransformPtr::dcast(node->getCore())->getMatrix().setTranslate(float(index), .5f, -1.f);
    }
    if (index % 5 == 0) {
        setName(node, "part " + std::to_string(index));
    }
    return node;
}

struct NodeCounter
{
    Action::ResultE enter(NodePtr &)
    {
        ++count;
        return Action::Continue;
    }

    int count = 0;
};

int countNodes(const NodePtr &root)
{
    NodeCounter counter;
    traverse(root,
        osgTypedMethodFunctor1ObjPtrCPtrRef<Action::ResultE, NodeCounter, NodePtr>(
            &counter, &NodeCounter::enter));
    return counter.count;
}

void nodes()
{
    std::unique_ptr<PlainNode> plain;
    NodeRefPtr root;
    int visited = 0;
    const double makePlain = BenchClock::time([&] { plain = makePlainTree(nodeCount); });
    const double walkPlain = BenchClock::time([&] { visited = countPlain(*plain); });
    const double destroyPlain = BenchClock::time([&] { plain.reset(); });
    const double before = residentBytes();
    const double make
        = BenchClock::time([&] { root = NodeRefPtr(makeTree(nodeCount, makeGroupNode)); });
    const double bytes = (residentBytes() - before) / nodeCount;
    const double walk = BenchClock::time([&] { visited -= countNodes(root.get()); });
    const double destroy = BenchClock::time([&] { root = NodeRefPtr(); });
    root = NodeRefPtr(makeInstances(nodeCount));
    const double destroyInstances = BenchClock::time([&] { root = NodeRefPtr(); });
    if (visited != 0) {
        std::abort();
    }
    BenchTable::atMost("1,000,000 nodes with cores: make one, versus two plain objects",
        perItem(make, nodeCount), perItem(makePlain, nodeCount), 10, "ns");
    BenchTable::atMost("1,000,000 nodes with cores: visit one, versus a plain recursion",
        perItem(walk, nodeCount), perItem(walkPlain, nodeCount), 5, "ns");
    BenchTable::atMost("1,000,000 nodes with cores: destroy one, versus two plain objects",
        perItem(destroy, nodeCount), perItem(destroyPlain, nodeCount), 25, "ns");
    BenchTable::atMost("1,000,000 nodes with a shared core: destroy one, versus a core for each",
        perItem(destroyInstances, nodeCount), perItem(destroy, nodeCount), 1, "ns");
    BenchTable::figure("1,000,000 nodes with cores: memory per node", bytes, "bytes");
}

// Splits the text into words at white space and commas.
std::size_t countWords(const std::string &text)
{
    constexpr const char *separators = " \t\r\n,";
    std::size_t count = 0;
    for (const char *at = text.c_str(); *at; ++count) {
        at += std::strspn(at, separators);
        at += std::strcspn(at, separators);
    }
    return count;
}

void files()
{
    const NodeRefPtr scene(makeTree(fileNodeCount, makeSceneNode));
    std::ostringstream out;
    const double write
        = BenchClock::time([&] { SceneFileHandler::the().write(scene.get(), out, "osg"); });
    const std::string text = out.str();
    std::size_t words = 0;
    const double tokens = BenchClock::medianOf(
        5, [&] { return BenchClock::time([&] { words = countWords(text); }); });
    std::istringstream in(text);
    NodeRefPtr copy;
    const double read = BenchClock::time(
        [&] { copy = NodeRefPtr(SceneFileHandler::the().read(in, "osg", nullptr)); });
    if (words == 0 || countNodes(copy.get()) != fileNodeCount + 1) {
        std::abort();
    }
    BenchTable::figure("scene file of 100,000 nodes: size", double(text.size()) / 1e6, "MB");
    BenchTable::figure(
        "scene file of 100,000 nodes: write", megabytesPerSecond(text.size(), write), "MB/s");
    BenchTable::figure(
        "scene file of 100,000 nodes: read", megabytesPerSecond(text.size(), read), "MB/s");
    BenchTable::atMost(
        "scene file of 100,000 nodes: read a node, versus splitting its text into words",
        perItem(read, fileNodeCount), perItem(tokens, fileNodeCount), 15, "ns");
}

template <class Work> double timePerValue(Work work)
{
    return perItem(BenchClock::medianOf(3,
                       [&] {
                           return BenchClock::time([&] {
                               for (int i = 0; i < valueCount; ++i) {
                                   work(i);
                               }
                           });
                       }),
        valueCount);
}

void realsAsText()
{
    SFReal32 field;
    std::string text;
    char buffer[64];
    double sum = 0;
    const double write = timePerValue([&](int i) {
        field.setValue(float(i) * .37f);
        field.getValueByStr(text);
        sum += text[0];
    });
    const double print = timePerValue([&](int i) {
        std::snprintf(buffer, sizeof buffer, "%e", double(float(i) * .37f));
        sum += buffer[0];
    });
    const double read = timePerValue([&](int i) {
        buffer[0] = char('0' + i % 10);
        field.pushValueByStr(buffer);
        sum += double(field.getValue());
    });
    const double parse = timePerValue([&](int i) {
        buffer[0] = char('0' + i % 10);
        sum += double(std::strtof(buffer, nullptr));
    });
    BenchTable::atMost("1,000,000 reals: write one, versus snprintf", write, print, 1, "ns");
    BenchTable::atMost("1,000,000 reals: read one, versus strtof", read, parse, 1.5, "ns");
    if (sum == 0) {
        std::abort();
    }
}

void vectorsAsText()
{
    SFVec3f field;
    std::string text;
    char buffer[64];
    const double write = timePerValue([&](int i) {
        field.setValue(Vec3f(float(i), 2.5f, -1.f));
        field.getValueByStr(text);
    });
    const double print = timePerValue(
        [&](int i) { std::snprintf(buffer, sizeof buffer, "%e  %e  %e", double(i), 2.5, -1.); });
    const double read = timePerValue([&](int) { field.pushValueByStr(buffer); });
    const double parse = timePerValue([&](int) {
        float x = 0;
        float y = 0;
        float z = 0;
        if (std::sscanf(buffer, "%e %e %e", &x, &y, &z) != 3) {
            std::abort();
        }
    });
    BenchTable::atMost("1,000,000 vectors: write one, versus snprintf", write, print, 1, "ns");
    BenchTable::atMost("1,000,000 vectors: read one, versus sscanf", read, parse, 1, "ns");
}

}

int main(int argc, char **argv)
{
    osgInit(argc, argv);
    nodes();
    files();
    realsAsText();
    vectorsAsText();
    return 0;
}
