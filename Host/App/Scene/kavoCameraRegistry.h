#pragma once

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

/// The cameras of the open scene. Nodes do not hold cameras, so this registry references them. A
/// camera disappears when its beacon node is destroyed. For the GUI thread only.
namespace kavoCameraRegistry {

/// Replaces all cameras; the first one becomes active.
void set(const std::vector<osg::RefPtr<osg::CameraPtr>> &cameras);

/// The ids of the beacon nodes, in the order of the cameras.
std::vector<osg::UInt32> nodeIds();

/// The camera whose beacon is that node, null if there is none.
osg::CameraPtr at(osg::UInt32 nodeId);

/// The beacon node of the active camera; 0 if there is none.
osg::UInt32 activeNodeId();

/// Activates the camera whose beacon is that node. Ignored if there is none.
void activate(osg::UInt32 nodeId);

} // namespace kavoCameraRegistry
