#pragma once

#include <OpenSG/OSGGeometry.h>

struct aiMesh;

/// Turns a mesh of one kind of primitives into a Geometry: positions, normals, colours and up to
/// eight sets of texture coordinates, addressed by one index for all of them. GUI thread.
namespace kavoGeometryBuilder {

/// The new geometry without a material; its reference count is 0.
osg::GeometryPtr build(const aiMesh &mesh);

} // namespace kavoGeometryBuilder
