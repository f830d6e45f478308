#include <kavoNodePtr.h>

#include <OpenSG/OSGNode.h>

#include <utility>

kavoNodePtr::kavoNodePtr(const osg::NullFieldContainerPtr &)
{
}

kavoNodePtr::kavoNodePtr(const osg::NodePtr &node)
    : m_node(node)
{
    osg::addRefCP(m_node);
}

kavoNodePtr::kavoNodePtr(const kavoNodePtr &other)
    : kavoNodePtr(other.m_node)
{
}

kavoNodePtr::kavoNodePtr(kavoNodePtr &&other) noexcept
    : m_node(other.m_node)
{
    other.m_node = osg::NullFC;
}

kavoNodePtr::~kavoNodePtr()
{
    osg::subRefCP(m_node);
}

kavoNodePtr &kavoNodePtr::operator=(kavoNodePtr other) noexcept
{
    const osg::NodePtr previous = m_node;
    m_node = other.m_node;
    other.m_node = previous;
    return *this;
}

kavoNodePtr::operator osg::NodePtr() const
{
    return m_node;
}

osg::Node *kavoNodePtr::operator->() const
{
    return m_node.getCPtr();
}

bool kavoNodePtr::operator==(const osg::NullFieldContainerPtr &) const
{
    return m_node == osg::NullFC;
}

bool kavoNodePtr::operator!=(const osg::NullFieldContainerPtr &) const
{
    return m_node != osg::NullFC;
}

bool kavoNodePtr::operator==(const kavoNodePtr &other) const
{
    return m_node == other.m_node;
}

bool kavoNodePtr::operator!=(const kavoNodePtr &other) const
{
    return m_node != other.m_node;
}
