#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

/// Attaches the cameras of the open scene to its root while the scene is saved. No node references
/// a camera, so a file stores the cameras in an FCPtrAttributeMap of the root.
class kavoCameraAttachment
{
public:
    using List = std::vector<osg::RefPtr<osg::CameraPtr>>;

    /// Attaches the cameras; the destructor detaches them.
    explicit kavoCameraAttachment(const osg::NodePtr &root);
    ~kavoCameraAttachment();
    kavoCameraAttachment(const kavoCameraAttachment &) = delete;
    kavoCameraAttachment &operator=(const kavoCameraAttachment &) = delete;

    /// Detaches the cameras from a root that was read from a file, and returns them.
    static List take(const osg::NodePtr &root);

private:
    osg::NodePtr m_root;
};
