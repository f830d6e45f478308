// Measures how long it takes to gather the value pairs of large scenes and to save them. Compares
// the operation with the literal implementation of the tests and with writing the finished file.

#include "BenchClock.h"
#include "BenchMemory.h"
#include "BenchTable.h"
#include "LiteralValuePairCsv.h"

#include <OSGValuePairBase.h>
#include <OSGValuePairCSVCreator.h>
#include <kavoNodePtr.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <string>

namespace {

using osg::ValuePairCSVCreator;

struct Size
{
    const char *name;
    int nodes, keys, keysPerNode;
};

const std::string fileName = std::filesystem::temp_directory_path() / "bm_valuepaircsv.csv";
const std::string copyName = fileName + ".copy";

std::string keyName(int key)
{
    return "property" + std::to_string(key);
}

osg::ValuePairBasePtr makePairs(const Size &size, std::mt19937 &random)
{
    std::set<int> keys;
    while (int(keys.size()) < size.keysPerNode)
        keys.insert(int(random() % unsigned(size.keys)));
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    for (int key : keys) {
        pairs->getKeys().push_back(keyName(key));
        pairs->getValues().push_back(std::to_string(random() % 1000000) + ".5");
    }
    return pairs;
}

// Named nodes in groups of a hundred. Each node draws its keys at random.
kavoNodePtr makeScene(const Size &size)
{
    std::mt19937 random(1);
    const kavoNodePtr root(osg::Node::create());
    osg::NodePtr parent = root;
    for (int i = 0; i < size.nodes; ++i) {
        const osg::NodePtr node = i == 0 ? osg::NodePtr(root) : osg::Node::create();
        node->setCore(osg::Group::create());
        osg::setName(node, "Node" + std::to_string(i));
        node->addAttachment(makePairs(size, random));
        if (i > 0)
            (i % 100 == 1 ? osg::NodePtr(root) : parent)->addChild(node);
        if (i % 100 == 1)
            parent = node;
    }
    return root;
}

struct Cost
{
    double gather, save;
    std::size_t memory;
};

template <class Operation> void run(Operation &operation, const kavoNodePtr &root, Cost &cost)
{
    osg::NodePtr start = root;
    cost.gather = BenchClock::time([&] { static_cast<osg::GraphOp &>(operation).traverse(start); });
    cost.save = BenchClock::time([&] { operation.save(fileName); });
}

template <class Make> Cost measure(const kavoNodePtr &root, int rounds, Make make)
{
    std::vector<double> gather, save;
    Cost cost;
    for (int round = 0; round < rounds; ++round) {
        run(*make(), root, cost);
        gather.push_back(cost.gather);
        save.push_back(cost.save);
    }
    BenchMemory::startCounting();
    run(*make(), root, cost);
    BenchMemory::stopCounting();
    return { BenchClock::median(gather), BenchClock::median(save), BenchMemory::peak() };
}

std::string readFile()
{
    std::ifstream file(fileName, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

double timeOfOneWrite(const std::string &bytes)
{
    return BenchClock::median(5, [&] {
        std::FILE *file = std::fopen(copyName.c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    });
}

void bench(const Size &size)
{
    const kavoNodePtr root = makeScene(size);
    const Cost ours = measure(
        root, 5, [] { return std::make_unique<ValuePairCSVCreator>("ValuePairCSVCreator"); });
    const std::string bytes = readFile();
    const double write = timeOfOneWrite(bytes);
    const Cost literal = measure(root, 1, [] { return std::make_unique<LiteralValuePairCsv>(); });
    if (bytes != readFile()) {
        std::fprintf(stderr, "%s: the files differ\n", size.name);
        std::exit(1);
    }
    const std::string name = size.name;
    BenchTable::faster((name + ": gather and save").c_str(), ours.gather + ours.save,
        literal.gather + literal.save, 15);
    BenchTable::atMost((name + ": peak memory").c_str(), double(ours.memory) / (1 << 20),
        double(literal.memory) / (1 << 20), 0.1, "MiB");
    BenchTable::atMost(
        (name + ": save, versus one fwrite of the file").c_str(), ours.save, write, 3, "ms");
    BenchTable::figure((name + ": gather").c_str(), ours.gather, "ms");
}

double timeFor(const Size &size)
{
    const Cost cost = measure(makeScene(size), 5,
        [] { return std::make_unique<ValuePairCSVCreator>("ValuePairCSVCreator"); });
    return cost.gather + cost.save;
}

// Four times as many cells should take four times as long, with more nodes and with more keys.
void benchGrowth()
{
    const double time = timeFor({ "", 50000, 100, 10 });
    BenchTable::atMost("100 keys, 10 per node: 200,000 nodes versus 50,000",
        timeFor({ "", 200000, 100, 10 }), time, 5, "ms");
    BenchTable::atMost("50,000 nodes: 400 keys, 40 per node, versus 100 keys, 10 per node",
        timeFor({ "", 50000, 400, 40 }), time, 5, "ms");
}

}

int main(int argc, char **argv)
{
    osg::osgInit(argc, argv);
    std::cout.rdbuf(nullptr); // drops what the operations print; the table uses printf
    bench({ "100,000 nodes, 200 keys, 20 per node", 100000, 200, 20 });
    bench({ "1,000,000 nodes, 50 keys, 5 per node", 1000000, 50, 5 });
    benchGrowth();
    std::filesystem::remove(fileName);
    std::filesystem::remove(copyName);
    return 0;
}
