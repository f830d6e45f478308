#pragma once

#include <OpenSG/OSGNode.h>

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

class AttachmentContainer;

/// Copies a tree and all containers that it refers to, except containers of the shared types.
class TreeCopy
{
public:
    /// `sharedTypes` are names separated by commas. Unknown names are reported in the log.
    explicit TreeCopy(const std::string &sharedTypes);

    NodePtr of(const NodePtr &root);

private:
    NodePtr copyNodes(const NodePtr &root);
    FieldContainerPtr copyOf(const FieldContainerPtr &original);
    FieldContainerPtr makeCopy(const FieldContainerPtr &original);
    bool isShared(const FieldContainerType &type) const;
    void followFields(const FieldContainerPtr &original, const FieldContainerPtr &copy);
    void followField(const FieldContainerPtr &copy, const FieldDescription &description);
    void followAttachments(AttachmentContainer &original, const AttachmentContainerPtr &copy);

    std::vector<const FieldContainerType *> _sharedTypes;
    std::unordered_map<UInt32, FieldContainerPtr> _copies;
    // Originals and their copies. The fields of these copies still refer to the original targets.
    std::vector<std::pair<FieldContainerPtr, FieldContainerPtr>> _pending;
};

OSG_END_NAMESPACE
