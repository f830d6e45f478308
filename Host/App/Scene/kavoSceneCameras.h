#pragma once

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

/// The cameras of the open scene. No node holds a camera, so the host keeps them here, referenced.
/// A camera lives as long as its beacon: those whose node was deleted are no longer listed.
/// GUI thread.
namespace kavoSceneCameras {

/// Replaces all cameras; the first one becomes active.
void set(const std::vector<osg::RefPtr<osg::CameraPtr>> &cameras);

/// Container ids of the beacons, in the order of the cameras.
std::vector<osg::UInt32> nodeIds();

/// The camera at a node, null if there is none.
osg::CameraPtr at(osg::UInt32 nodeId);

/// The node of the camera that the viewport looks through; 0 if there is none.
osg::UInt32 activeNodeId();

/// Activates the camera at the node; nothing happens if there is none.
void activate(osg::UInt32 nodeId);

} // namespace kavoSceneCameras
