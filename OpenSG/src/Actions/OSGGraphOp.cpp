#include <OpenSG/OSGGraphOp.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <sstream>

OSG_BEGIN_NAMESPACE

namespace {

// Independent of the locale.
std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

template <class T> bool contains(const std::list<T> &list, const T &value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

} // namespace

GraphOp::GraphOp(const char *name)
{
    setName(name);
}

bool GraphOp::traverse(NodePtr &root)
{
    const Action::ResultE result = osg::traverse(root,
        TraverseEnterFunctor([this](NodePtr &node) { return traverseEnter(node); }),
        TraverseLeaveFunctor(
            [this](NodePtr &node, Action::ResultE res) { return traverseLeave(node, res); }));
    return result == Action::Continue;
}

void GraphOp::clearExcludeList()
{
    _excludeListNodes.clear();
    _excludeListNames.clear();
}

bool GraphOp::isInExcludeListNodes(const NodePtr &node) const
{
    return contains(_excludeListNodes, node);
}

bool GraphOp::isInExcludeListNames(const std::string &name) const
{
    return contains(_excludeListNames, name);
}

bool GraphOp::isInExcludeList(const NodePtr &node) const
{
    const Char8 *name = osg::getName(node);
    return isInExcludeListNodes(node) || (name && isInExcludeListNames(name));
}

Action::ResultE GraphOp::traverseEnter(NodePtr &node)
{
    return traverseEnter(static_cast<const NodePtr &>(node));
}

Action::ResultE GraphOp::traverseEnter(const NodePtr &)
{
    return Action::Continue;
}

Action::ResultE GraphOp::traverseLeave(NodePtr &node, Action::ResultE res)
{
    return traverseLeave(static_cast<const NodePtr &>(node), res);
}

Action::ResultE GraphOp::traverseLeave(const NodePtr &, Action::ResultE res)
{
    return res;
}

GraphOp::ParamSet::ParamSet(const std::string &params)
{
    std::istringstream words(params);
    for (std::string word; words >> word;) {
        const auto equals = word.find('=');
        const bool isFlag = equals == std::string::npos;
        _values[lowered(word.substr(0, equals))].text = isFlag ? "true" : word.substr(equals + 1);
    }
}

bool GraphOp::ParamSet::operator()(const char *name, std::string &value)
{
    const std::string *text = use(name);
    if (text) {
        value = *text;
    }
    return text;
}

bool GraphOp::ParamSet::operator()(const char *name, Real32 &value)
{
    const std::string *text = use(name);
    if (text) {
        value = TypeTraits<Real32>::getFromString(text->c_str());
    }
    return text;
}

bool GraphOp::ParamSet::operator()(const char *name, UInt16 &value)
{
    const std::string *text = use(name);
    if (text) {
        value = TypeTraits<UInt16>::getFromString(text->c_str());
    }
    return text;
}

bool GraphOp::ParamSet::operator()(const char *name, UInt32 &value)
{
    const std::string *text = use(name);
    if (text) {
        value = TypeTraits<UInt32>::getFromString(text->c_str());
    }
    return text;
}

bool GraphOp::ParamSet::operator()(const char *name, bool &value)
{
    const std::string *text = use(name);
    if (text) {
        value = lowered(*text) == "true";
    }
    return text;
}

void GraphOp::ParamSet::markUsed(const char *name)
{
    use(name);
}

std::string GraphOp::ParamSet::getUnusedParams() const
{
    std::string unused;
    for (const auto &[name, value] : _values) {
        if (!value.used) {
            unused += (unused.empty() ? "" : " ") + name;
        }
    }
    return unused;
}

const std::string *GraphOp::ParamSet::use(const char *name)
{
    const auto found = _values.find(lowered(name));
    if (found == _values.end()) {
        return nullptr;
    }
    found->second.used = true;
    return &found->second.text;
}

OSG_END_NAMESPACE
