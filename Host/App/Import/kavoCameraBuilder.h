#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPerspectiveCamera.h>

struct aiCamera;

/// Turns a camera of a file into a PerspectiveCamera. GUI thread.
namespace kavoCameraBuilder {

/// The new camera, named as in the file, without a beacon; its reference count is 0.
osg::PerspectiveCameraPtr build(const aiCamera &camera);

/// Places the camera, which looks along its negative z axis, in the node that carries it.
osg::Matrix placement(const aiCamera &camera);

} // namespace kavoCameraBuilder
