#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

/// Cameras on their way through a scene file. No node holds a camera, so in files they hang on the
/// root, as the containers of an FCPtrAttributeMap.
class kavoCameraAttachment
{
public:
    using List = std::vector<osg::RefPtr<osg::CameraPtr>>;

    /// Hangs the cameras of the open scene on a root, for as long as this lives.
    explicit kavoCameraAttachment(const osg::NodePtr &root);
    ~kavoCameraAttachment();
    kavoCameraAttachment(const kavoCameraAttachment &) = delete;
    kavoCameraAttachment &operator=(const kavoCameraAttachment &) = delete;

    /// Takes from a root what was hung on it.
    static List take(const osg::NodePtr &root);

private:
    osg::NodePtr m_root;
};
