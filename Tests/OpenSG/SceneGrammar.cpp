#include "SceneGrammar.h"

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>

#include <algorithm>
#include <iterator>

using namespace osg;

namespace {

constexpr int maxDepth = 5;

std::string contentTypeOf(FieldContainerType &type, UInt32 fieldId)
{
    return type.getPrototype()->getField(fieldId)->getContentType().getCName();
}

bool isPointer(const std::string &contentType)
{
    return contentType.find("Ptr") != std::string::npos || contentType == "AttachmentMap";
}

bool isPointerField(FieldContainerType &type, UInt32 fieldId)
{
    return !type.getFieldDescription(fieldId)->isInternal()
        && isPointer(contentTypeOf(type, fieldId));
}

bool isFitting(const FieldContainerType &type, const std::string &contentType)
{
    const std::string name = contentType == "AttachmentMap"
        ? "Attachment"
        : contentType.substr(0, contentType.find("Ptr"));
    const FieldContainerType *target = FieldContainerFactory::the()->findType(name.c_str());
    return target && type.isDerivedFrom(*target);
}

std::vector<FieldContainerType *> fitting(
    const std::vector<FieldContainerType *> &types, const std::string &contentType)
{
    std::vector<FieldContainerType *> result;
    std::copy_if(types.begin(), types.end(), std::back_inserter(result),
        [&](const FieldContainerType *type) { return isFitting(*type, contentType); });
    return result;
}

} // namespace

SceneGrammar::SceneGrammar(unsigned seed)
    : m_random(seed)
{
    FieldContainerFactory &factory = *FieldContainerFactory::the();
    for (auto type = factory.beginTypes(); type != factory.endTypes(); ++type) {
        if (!type->second->isAbstract()) {
            m_types.push_back(type->second);
        }
    }
}

std::string SceneGrammar::scene()
{
    m_defined.clear();
    std::string text;
    for (std::size_t count = 1 + below(3); count > 0; --count) {
        const bool isNode = below(4) > 0;
        text += container(isNode ? Node::getClassType() : *m_types[below(m_types.size())], 0);
    }
    return text;
}

std::string SceneGrammar::container(FieldContainerType &type, int depth)
{
    std::string text;
    if (below(2) == 0) {
        text = "DEF n" + std::to_string(m_defined.size()) + ' ';
        m_defined.push_back(&type);
    }
    text.append(type.getCName()).append(" {\n");
    for (std::size_t count = 1 + below(4); count > 0; --count) {
        text += field(type, depth);
    }
    return text + "}\n";
}

// Mostly one of pointers, if it has any.
UInt32 SceneGrammar::fieldOf(FieldContainerType &type)
{
    std::vector<UInt32> pointers;
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        if (isPointerField(type, id)) {
            pointers.push_back(id);
        }
    }
    return pointers.empty() || below(4) == 0 ? 1 + UInt32(below(type.getNumFieldDescs()))
                                             : pointers[below(pointers.size())];
}

std::string SceneGrammar::field(FieldContainerType &type, int depth)
{
    const UInt32 id = fieldOf(type);
    const FieldDescription &description = *type.getFieldDescription(id);
    if (description.isInternal()) {
        return std::string();
    }
    const Field &prototype = *type.getPrototype()->getField(id);
    const std::string contentType = contentTypeOf(type, id);
    const bool isList
        = prototype.getCardinality() == FieldType::MULTI_FIELD || contentType == "AttachmentMap";
    std::string value;
    if (isPointer(contentType)) {
        for (std::size_t count = isList ? below(4) : 1; count > 0; --count) {
            value += pointer(contentType, depth);
        }
    } else {
        prototype.getValueByStr(value);
    }
    return description.getCName() + (isList ? " [ " + value + " ]\n" : ' ' + value + '\n');
}

std::string SceneGrammar::pointer(const std::string &contentType, int depth)
{
    const std::size_t choice = below(10);
    if (choice < 4) {
        return use(contentType);
    }
    const std::vector<FieldContainerType *> types = fitting(m_types, contentType);
    const bool isNew = choice > 4 && depth < maxDepth && !types.empty();
    return isNew ? container(*types[below(types.size())], depth + 1) : "NULL\n";
}

std::string SceneGrammar::use(const std::string &contentType)
{
    const std::vector<FieldContainerType *> types = fitting(m_defined, contentType);
    if (types.empty()) {
        return "NULL\n";
    }
    std::size_t index = below(m_defined.size());
    while (!isFitting(*m_defined[index], contentType)) {
        index = (index + 1) % m_defined.size();
    }
    return "USE n" + std::to_string(index) + '\n';
}
