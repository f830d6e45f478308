#include "Scene/kavoCameraRegistry.h"

#include "Scene/kavoContainers.h"

#include <algorithm>

namespace {

struct Entry
{
    osg::RefPtr<osg::CameraPtr> camera;
    osg::UInt32 nodeId; // id instead of handle: the camera does not reference its beacon
};

struct Cameras
{
    std::vector<Entry> entries;
    osg::UInt32 activeNodeId = 0;
};

// Never destroyed: static objects are destroyed after OpenSG, which could not release references.
Cameras &cameras()
{
    static auto *const instance = new Cameras;
    return *instance;
}

bool isDead(const Entry &entry)
{
    return kavoContainers::node(entry.nodeId) == osg::NullFC;
}

} // namespace

void kavoCameraRegistry::set(const std::vector<osg::RefPtr<osg::CameraPtr>> &newCameras)
{
    cameras().entries.clear();
    for (const auto &camera : newCameras)
        cameras().entries.push_back({ camera, camera.get()->getBeacon().getFieldContainerId() });
    cameras().activeNodeId = newCameras.empty() ? 0 : cameras().entries.front().nodeId;
}

std::vector<osg::UInt32> kavoCameraRegistry::nodeIds()
{
    std::vector<Entry> &entries = cameras().entries;
    entries.erase(std::remove_if(entries.begin(), entries.end(), isDead), entries.end());
    std::vector<osg::UInt32> ids;
    for (const Entry &entry : entries)
        ids.push_back(entry.nodeId);
    return ids;
}

osg::CameraPtr kavoCameraRegistry::at(osg::UInt32 nodeId)
{
    const std::vector<Entry> &entries = cameras().entries;
    const auto found = std::find_if(entries.begin(), entries.end(),
        [nodeId](const Entry &entry) { return entry.nodeId == nodeId; });
    return found == entries.end() || isDead(*found) ? osg::CameraPtr() : found->camera.get();
}

osg::UInt32 kavoCameraRegistry::activeNodeId()
{
    return at(cameras().activeNodeId) == osg::NullFC ? 0 : cameras().activeNodeId;
}

void kavoCameraRegistry::activate(osg::UInt32 nodeId)
{
    if (at(nodeId) != osg::NullFC)
        cameras().activeNodeId = nodeId;
}
