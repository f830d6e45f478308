#pragma once

#include <OpenSG/OSGGeometry.h>

struct aiMesh;

/// Converts a mesh of a file to a Geometry. GUI thread.
///
/// The mesh has primitives of one kind. The geometry has positions, normals, colours and up to
/// eight sets of texture coordinates, with one index for all of them.
namespace kavoGeometryBuilder {

/// Creates the geometry without a material. Its reference count is 0.
osg::GeometryPtr build(const aiMesh &mesh);

} // namespace kavoGeometryBuilder
