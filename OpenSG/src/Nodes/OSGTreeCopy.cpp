#include "Nodes/OSGTreeCopy.h"

#include "Nodes/OSGContainerTargets.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <memory>

OSG_BEGIN_NAMESPACE

TreeCopy::TreeCopy(const std::string &sharedTypes)
{
    NumberText::Tokens names(sharedTypes.c_str());
    while (names.next()) {
        if (const auto *type = FieldContainerFactory::the()->findType(names.token().c_str())) {
            _sharedTypes.push_back(type);
        } else {
            SWARNING << "deepCloneTree: there is no type " << names.token() << endLog;
        }
    }
}

NodePtr TreeCopy::of(const NodePtr &root)
{
    const NodePtr result = copyNodes(root);
    while (!_pending.empty()) {
        const auto [original, copy] = _pending.back();
        _pending.pop_back();
        followFields(original, copy);
    }
    return result;
}

// All nodes are copied first, because any container may point to them.
NodePtr TreeCopy::copyNodes(const NodePtr &root)
{
    std::vector<std::pair<NodePtr, NodePtr>> nodes { { root, NodePtr::dcast(makeCopy(root)) } };
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const auto [original, copy] = nodes[i];
        for (const NodePtr &child : *original->getMFChildren()) {
            if (child) {
                nodes.emplace_back(child, NodePtr::dcast(makeCopy(child)));
                copy->addChild(nodes.back().second);
            }
        }
    }
    return nodes.front().second;
}

FieldContainerPtr TreeCopy::copyOf(const FieldContainerPtr &original)
{
    const auto known = _copies.find(original.getFieldContainerId());
    if (known != _copies.end()) {
        return known->second;
    }
    const bool isKept = !original || original->getType().isNode() || isShared(original->getType());
    return isKept ? original : makeCopy(original);
}

FieldContainerPtr TreeCopy::makeCopy(const FieldContainerPtr &original)
{
    const FieldContainerPtr copy = original->shallowCopy();
    _copies.emplace(original.getFieldContainerId(), copy);
    _pending.emplace_back(original, copy);
    return copy;
}

bool TreeCopy::isShared(const FieldContainerType &type) const
{
    return std::any_of(_sharedTypes.begin(), _sharedTypes.end(),
        [&](const FieldContainerType *shared) { return type.isDerivedFrom(*shared); });
}

void TreeCopy::followFields(const FieldContainerPtr &original, const FieldContainerPtr &copy)
{
    if (const auto container = AttachmentContainerPtr::dcast(original)) {
        followAttachments(*container, AttachmentContainerPtr::dcast(copy));
    }
    if (const NodePtr node = NodePtr::dcast(copy)) {
        node->setCore(NodeCorePtr::dcast(copyOf(node->getCore())));
        return;
    }
    forEachPointerField(copy,
        [&](Field &, const FieldDescription &description) { followField(copy, description); });
}

void TreeCopy::followField(const FieldContainerPtr &copy, const FieldDescription &description)
{
    Field &field = *copy->getField(description.getFieldId());
    const std::unique_ptr<Field> result(FieldFactory::the().createField(field.getType().getId()));
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        result->pushFieldContainer(copyOf(field.getFieldContainer(i)));
    }
    beginEditCP(copy, description.getFieldMask());
    field.setAbstrValue(*result);
    endEditCP(copy, description.getFieldMask());
}

// At this point the copy shares the attachments of the original, all with binding 0.
void TreeCopy::followAttachments(AttachmentContainer &original, const AttachmentContainerPtr &copy)
{
    beginEditCP(copy, AttachmentContainer::AttachmentsFieldMask);
    const AttachmentMap shared = copy->getSFAttachments()->getValue();
    for (const auto &[key, attachment] : shared) {
        copy->subAttachment(attachment, static_cast<UInt16>(key));
    }
    for (const auto &[key, attachment] : original.getSFAttachments()->getValue()) {
        copy->addAttachment(AttachmentPtr::dcast(copyOf(attachment)), static_cast<UInt16>(key));
    }
    endEditCP(copy, AttachmentContainer::AttachmentsFieldMask);
}

NodePtr deepCloneTree(const NodePtr &root, const std::string &shareString)
{
    return root ? TreeCopy(shareString).of(root) : NodePtr();
}

OSG_END_NAMESPACE
