#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGNodePtr.h>

/// Handle of a node that holds a reference to it as long as it lives.
///
/// OpenSG destroys a container when its last reference goes, and a new node has none: wrapping a
/// node of count 0 and dropping the wrapper destroys the node. Reference roots of your own first.
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

    /// True for the empty handle.
    bool operator==(const osg::NullFieldContainerPtr &null) const;
    bool operator!=(const osg::NullFieldContainerPtr &null) const;
    bool operator==(const kavoNodePtr &other) const;
    bool operator!=(const kavoNodePtr &other) const;

private:
    osg::NodePtr m_node;
};
