#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPerspectiveCamera.h>

struct aiCamera;

/// Turns a camera of a file into a PerspectiveCamera. GUI thread.
class kavoCameraBuilder
{
public:
    /// The new camera, named as in the file, without a beacon; its reference count is 0.
    static osg::PerspectiveCameraPtr build(const aiCamera &camera);

    /// Places the camera, which looks along its negative z axis, in the node that carries it.
    static osg::Matrix placement(const aiCamera &camera);
};
