#pragma once

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleMaterial.h>

OSG_BEGIN_NAMESPACE

/// Creates shapes around the origin, with normals and texture coordinates. All shapes share one
/// material. The counts are the divisions of a side or circle. Too small counts are raised to the
/// least possible one. Before osgInit the results are null.
SimpleMaterialPtr getDefaultMaterial();

/// The plane is that of the x and y axes and faces z.
NodePtr makePlane(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);
GeometryPtr makePlaneGeo(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);

NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);
GeometryPtr makeBoxGeo(
    Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);

/// The sphere is an icosahedron whose faces are halved in each direction `depth` times. The maximum
/// of `depth` is 8, which gives more than a million faces.
NodePtr makeSphere(UInt16 depth, Real32 radius);
GeometryPtr makeSphereGeo(UInt16 depth, Real32 radius);

/// The axis is z. The inner radius is that of the tube, the outer radius that of the circle in the
/// middle of the tube.
NodePtr makeTorus(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);
GeometryPtr makeTorusGeo(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);

/// The axis is y.
NodePtr makeCylinder(
    Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop, bool doBottom);
GeometryPtr makeCylinderGeo(
    Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop, bool doBottom);

/// The axis is y. The tip is at the top.
NodePtr makeCone(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);
GeometryPtr makeConeGeo(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);

OSG_END_NAMESPACE
