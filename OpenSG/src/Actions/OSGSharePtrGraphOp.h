#pragma once

#include <OpenSG/OSGGraphOp.h>

#include <map>
#include <set>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Makes pointers to equal containers of some types point to one of them. Containers are equal if
/// they have the same type, values, attachments and targets of pointers.
class SharePtrGraphOp : public GraphOp
{
    typedef GraphOp Inherited;

public:
    static const char *getClassname() { return "SharePtrGraphOp"; }

    explicit SharePtrGraphOp(const char *name = "SharePtr");
    GraphOp *create() override;

    /// `includes=Type,Type,...`: containers of these types and of types derived from them are
    /// shared. No types by default.
    void setParams(const std::string params) override;
    std::string usage() override;
    bool traverse(NodePtr &root) override;

protected:
    using Inherited::traverseEnter;
    Action::ResultE traverseEnter(NodePtr &node) override;

private:
    void shareBelow(const FieldContainerPtr &core);
    void shareTargets(const FieldContainerPtr &owner);
    FieldContainerPtr shared(const FieldContainerPtr &container);
    bool isIncluded(const FieldContainerType &type) const;

    std::vector<std::string> _includes;
    std::set<UInt32> _visited;
    std::map<std::string, FieldContainerPtr> _sharedByKey;
};

OSG_END_NAMESPACE
