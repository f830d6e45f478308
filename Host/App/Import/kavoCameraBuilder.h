#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPerspectiveCamera.h>

struct aiCamera;

/// Converts a camera of a file. GUI thread.
namespace kavoCameraBuilder {

/// Creates the camera, with its name and without a beacon. Its reference count is 0.
osg::PerspectiveCameraPtr build(const aiCamera &camera);

/// The position and direction of the camera in the coordinates of its node. An OpenSG camera
/// looks along its negative z axis.
osg::Matrix placement(const aiCamera &camera);

} // namespace kavoCameraBuilder
