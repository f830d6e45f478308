#include "Actions/OSGSharePtrGraphOp.h"

#include "Fields/OSGFieldSyntax.h"
#include "Nodes/OSGContainerTargets.h"

#include <OpenSG/OSGBinaryDataHandler.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSFBaseTypes.h>

#include <algorithm>
#include <memory>
#include <sstream>

OSG_BEGIN_NAMESPACE

namespace {

struct Registration
{
    Registration() { GraphOpFactory::the().registerOp(&prototype); }

    SharePtrGraphOp prototype;
} registration;

void appendKey(const FieldContainerPtr &container, BinaryDataHandler &key);

void appendText(const Field &field, BinaryDataHandler &key)
{
    SFString text;
    field.getValueByStr(text.getValue());
    text.copyToBin(key);
}

// The key of a value type of a client has its text too, because different values may have the same
// binary form. Each part begins with its size or ends with a mark, so that different fields never
// give the same key.
void appendFieldKey(Field &field, BinaryDataHandler &key)
{
    const FieldSyntax::Kind kind = FieldSyntax::of(field.getType()).kind;
    if (kind == FieldSyntax::Attachments) {
        forEachAttachment(
            field, [&](const FieldContainerPtr &attachment) { appendKey(attachment, key); });
        key.putValue(UInt32(0));
    } else if (kind == FieldSyntax::Pointers) {
        key.putValue(field.getSize());
        for (UInt32 i = 0; i < field.getSize(); ++i) {
            key.putValue(field.getFieldContainer(i).getFieldContainerId());
        }
    } else {
        field.copyToBin(key);
        if (kind == FieldSyntax::Text) {
            appendText(field, key);
        }
    }
}

void appendKey(const FieldContainerPtr &container, BinaryDataHandler &key)
{
    const FieldContainerType &type = container->getType();
    key.putValue(type.getId());
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        const bool isInternal = type.getFieldDescription(id)->isInternal();
        if (Field *field = isInternal ? nullptr : container->getField(id)) {
            appendFieldKey(*field, key);
        }
    }
}

// Two containers have the same key only if they are equal.
std::string keyOf(const FieldContainerPtr &container)
{
    BinaryDataHandler bytes;
    appendKey(container, bytes);
    std::string key(bytes.getSize(), '\0');
    bytes.get(key.data(), key.size());
    return key;
}

// A container on the path from a core to the container that is visited.
struct Level
{
    explicit Level(const FieldContainerPtr &container)
        : owner(container)
    {
        forEachPointerField(owner, [this](const Field &field, const FieldDescription &) {
            for (UInt32 i = 0; i < field.getSize(); ++i) {
                targets.push_back(field.getFieldContainer(i));
            }
        });
    }

    FieldContainerPtr owner;
    std::vector<FieldContainerPtr> targets;
    std::size_t nextTarget = 0;
};

} // namespace

SharePtrGraphOp::SharePtrGraphOp(const char *name)
    : Inherited(name)
{
}

GraphOp *SharePtrGraphOp::create()
{
    return new SharePtrGraphOp;
}

void SharePtrGraphOp::setParams(const std::string params)
{
    std::string includes;
    ParamSet values(params);
    values("includes", includes);
    std::istringstream names(includes);
    _includes.clear();
    for (std::string name; std::getline(names, name, ',');) {
        _includes.push_back(name);
    }
}

std::string SharePtrGraphOp::usage()
{
    return "SharePtr: lets equal containers be one\n"
           "  includes=Type,Type,...  the types, and all derived from them, that are shared\n";
}

bool SharePtrGraphOp::traverse(NodePtr &root)
{
    const bool ok = Inherited::traverse(root);
    _visited.clear();
    _sharedByKey.clear();
    return ok;
}

Action::ResultE SharePtrGraphOp::traverseEnter(NodePtr &node)
{
    if (node && node->getCore()) {
        shareBelow(node->getCore());
    }
    return Action::Continue;
}

// Depth first: targets may become equal after their own targets have been shared.
void SharePtrGraphOp::shareBelow(const FieldContainerPtr &core)
{
    std::vector<Level> path;
    const auto enter = [&](const FieldContainerPtr &container) {
        if (container && !container->getType().isNode()
            && _visited.insert(container.getFieldContainerId()).second) {
            path.emplace_back(container);
        }
    };
    enter(core);
    while (!path.empty()) {
        Level &level = path.back();
        if (level.nextTarget < level.targets.size()) {
            enter(FieldContainerPtr(level.targets[level.nextTarget++]));
        } else {
            shareTargets(level.owner);
            path.pop_back();
        }
    }
}

void SharePtrGraphOp::shareTargets(const FieldContainerPtr &owner)
{
    forEachPointerField(owner, [&](Field &field, const FieldDescription &description) {
        const std::unique_ptr<Field> result(
            FieldFactory::the().createField(field.getType().getId()));
        bool isChanged = false;
        for (UInt32 i = 0; i < field.getSize(); ++i) {
            const FieldContainerPtr target = field.getFieldContainer(i);
            const FieldContainerPtr replacement = shared(target);
            isChanged = isChanged || replacement != target;
            result->pushFieldContainer(replacement);
        }
        if (isChanged) {
            beginEditCP(owner, description.getFieldMask());
            field.setAbstrValue(*result);
            endEditCP(owner, description.getFieldMask());
        }
    });
}

FieldContainerPtr SharePtrGraphOp::shared(const FieldContainerPtr &container)
{
    if (!container || !isIncluded(container->getType())) {
        return container;
    }
    return _sharedByKey.emplace(keyOf(container), container).first->second;
}

bool SharePtrGraphOp::isIncluded(const FieldContainerType &type) const
{
    return std::any_of(_includes.begin(), _includes.end(), [&](const std::string &name) {
        const FieldContainerType *base = FieldContainerFactory::the()->findType(name.c_str());
        return base && type.isDerivedFrom(*base);
    });
}

OSG_END_NAMESPACE
