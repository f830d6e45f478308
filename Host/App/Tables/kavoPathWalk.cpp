#include "Tables/kavoPathWalk.h"

#include "Tables/kavoUtf8.h"

#include <kavoNodeUtils.h>

#include <algorithm>
#include <cstring>

namespace {

const char *nameOf(const osg::NodePtr &node)
{
    const char *name = kavoNodeUtils::getName(node);
    return name ? name : "";
}

void appendEscaped(std::string &path, const std::string &name)
{
    for (std::size_t place = 0; place < name.size();) {
        const std::size_t length = kavoUtf8::lengthAt(name, place);
        if (length == 0 || std::strchr("/%[]", name[place]))
            kavoUtf8::appendEscape(path, name[place]);
        else
            path.append(name, place, length);
        place += std::max<std::size_t>(length, 1);
    }
}

void appendStep(std::string &path, const char *name, int number)
{
    path += '/';
    appendEscaped(path, name);
    if (number > 1)
        path += '[' + std::to_string(number) + ']';
}

int numberAmongSiblings(const osg::NodePtr &node)
{
    const osg::NodePtr parent = node->getParent();
    int number = 1;
    for (osg::UInt32 i = 0; parent != osg::NullFC && parent->getChild(i) != node; ++i)
        number += std::strcmp(nameOf(parent->getChild(i)), nameOf(node)) == 0;
    return number;
}

std::string pathOfParents(const osg::NodePtr &node)
{
    std::vector<osg::NodePtr> parents;
    for (osg::NodePtr up = node->getParent(); up != osg::NullFC; up = up->getParent())
        parents.push_back(up);
    std::string path;
    for (auto parent = parents.rbegin(); parent != parents.rend(); ++parent)
        appendStep(path, nameOf(*parent), numberAmongSiblings(*parent));
    return path;
}

} // namespace

kavoPathWalk::kavoPathWalk(const osg::NodePtr &root)
    : m_root(root)
{
}

bool kavoPathWalk::next()
{
    if (m_root != osg::NullFC) {
        m_path = pathOfParents(m_root);
        visit(m_root, numberAmongSiblings(m_root));
        m_root = osg::NullFC;
        return true;
    }
    while (!m_levels.empty()) {
        Level &level = m_levels.back();
        m_path.resize(level.pathLength);
        if (level.nextChild < level.node->getNChildren()) {
            const osg::NodePtr child = level.node->getChild(level.nextChild++);
            if (child == osg::NullFC)
                continue;
            visit(child, ++level.names[nameOf(child)]);
            return true;
        }
        m_levels.pop_back();
    }
    return false;
}

void kavoPathWalk::visit(const osg::NodePtr &node, int number)
{
    m_node = node;
    m_name = nameOf(node);
    appendStep(m_path, m_name, number);
    if (node->getNChildren() > 0)
        m_levels.push_back({ node, 0, m_path.size(), {} });
}

std::string kavoPathWalk::withoutNumbers(const std::string &path)
{
    std::string plain;
    bool inNumber = false;
    for (char character : path) {
        inNumber = character == '[' || (inNumber && character != '/');
        if (!inNumber)
            plain += character;
    }
    return plain;
}
