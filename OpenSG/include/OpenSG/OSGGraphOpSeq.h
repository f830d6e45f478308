#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Graph operations that are applied one after the other.
class GraphOpSeq
{
public:
    /// Names of operations as GraphOpFactory knows them, each with its parameters in parentheses:
    ///     SharePtr(includes=Material) Prune()
    explicit GraphOpSeq(const std::string &operations = std::string());

    /// A step of an unknown name is reported in the log and left out. False if an operation ended
    /// its traversal before its time; the steps behind it are then left out, too.
    bool traverse(NodePtr &root);

private:
    struct Step
    {
        std::string name;
        std::string params;
    };

    std::vector<Step> _steps;
};

OSG_END_NAMESPACE
