#pragma once

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleMaterial.h>

OSG_BEGIN_NAMESPACE

/// Ready-made shapes around the origin, with normals and texture coordinates. All of them share
/// one material. The counts say into how many parts a side or a circle is divided; 0 counts as
/// the least that makes sense. Before osgInit all of them are null.
SimpleMaterialPtr getDefaultMaterial();

/// In the plane of x and y, facing z.
NodePtr makePlane(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);
GeometryPtr makePlaneGeo(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);

NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);
GeometryPtr makeBoxGeo(
    Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);

/// An icosahedron whose faces are halved in every direction `depth` times; more than 8, which
/// makes over a million faces, count as 8.
NodePtr makeSphere(UInt16 depth, Real32 radius);
GeometryPtr makeSphereGeo(UInt16 depth, Real32 radius);

/// Around the z axis; the tube has the inner radius, its middle the outer one.
NodePtr makeTorus(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);
GeometryPtr makeTorusGeo(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);

/// Around the y axis.
NodePtr makeCylinder(
    Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop, bool doBottom);
GeometryPtr makeCylinderGeo(
    Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop, bool doBottom);

/// Around the y axis, the point up.
NodePtr makeCone(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);
GeometryPtr makeConeGeo(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);

OSG_END_NAMESPACE
