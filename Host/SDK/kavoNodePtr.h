#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGNodePtr.h>

/// Node handle that holds a reference.
///
/// OpenSG destroys a container with its last reference, and a new node has none. Destroying the
/// only kavoNodePtr of a new node destroys the node.
class KAVO_SDK_EXPORT kavoNodePtr
{
public:
    kavoNodePtr() = default;
    kavoNodePtr(const osg::NullFieldContainerPtr &null);
    kavoNodePtr(const osg::NodePtr &node);
    kavoNodePtr(const kavoNodePtr &other);
    kavoNodePtr(kavoNodePtr &&other) noexcept;
    ~kavoNodePtr();

    kavoNodePtr &operator=(kavoNodePtr other) noexcept;

    operator osg::NodePtr() const;
    osg::Node *operator->() const;

    /// Returns true for the empty handle.
    bool operator==(const osg::NullFieldContainerPtr &null) const;
    bool operator!=(const osg::NullFieldContainerPtr &null) const;
    bool operator==(const kavoNodePtr &other) const;
    bool operator!=(const kavoNodePtr &other) const;

private:
    osg::NodePtr m_node;
};
