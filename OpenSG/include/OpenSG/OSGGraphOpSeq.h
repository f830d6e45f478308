#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// A sequence of graph operations.
class GraphOpSeq
{
public:
    /// Takes names that GraphOpFactory knows, each with its parameters in parentheses:
    ///     SharePtr(includes=Material) Prune()
    explicit GraphOpSeq(const std::string &operations = std::string());

    /// Applies the operations. Unknown names are reported in the log and skipped. If an operation
    /// ends its traversal early, the remaining operations are skipped and the result is false.
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
