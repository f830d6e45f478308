#pragma once

#include <OpenSG/OSGLight.h>

struct aiLight;

/// Converts a light of a file to a light core. GUI thread.
namespace kavoLightBuilder {

/// Creates the light without a beacon. Its reference count is 0. Ambient and area lights, which
/// OpenSG lacks, become point lights.
osg::LightPtr build(const aiLight &light);

} // namespace kavoLightBuilder
