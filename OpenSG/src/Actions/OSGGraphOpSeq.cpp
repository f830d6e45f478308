#include <OpenSG/OSGGraphOpSeq.h>

#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGLog.h>

#include <memory>
#include <sstream>

OSG_BEGIN_NAMESPACE

GraphOpSeq::GraphOpSeq(const std::string &operations)
{
    std::istringstream rest(operations);
    Step step;
    while (std::getline(rest >> std::ws, step.name, '(') && std::getline(rest, step.params, ')')) {
        _steps.push_back(step);
    }
}

bool GraphOpSeq::traverse(NodePtr &root)
{
    for (const Step &step : _steps) {
        const std::unique_ptr<GraphOp> operation(GraphOpFactory::the().create(step.name.c_str()));
        if (!operation) {
            SWARNING << "GraphOpSeq: there is no operation " << step.name << endLog;
            continue;
        }
        operation->setParams(step.params);
        if (!operation->traverse(root)) {
            return false;
        }
    }
    return true;
}

OSG_END_NAMESPACE
