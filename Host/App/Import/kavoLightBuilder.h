#pragma once

#include <OpenSG/OSGLight.h>

struct aiLight;

/// Turns a light of a file into a light core. GUI thread.
namespace kavoLightBuilder {

/// The new light without a beacon; its reference count is 0. OpenSG has no ambient and no
/// area lights: they become point lights.
osg::LightPtr build(const aiLight &light);

} // namespace kavoLightBuilder
