#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGGeoNormalsBase.h>
#include <OpenSG/OSGVector.h>

OSG_BEGIN_NAMESPACE

/// Normals of the vertices.
class GeoNormals : public AbstractGeoProperty<GeoNormalsBase, Vec3f>
{
    typedef AbstractGeoProperty<GeoNormalsBase, Vec3f> Inherited;

protected:
    friend class FieldContainer;

    GeoNormals() = default;
    GeoNormals(const GeoNormals &) = default;
    ~GeoNormals() override = default;
};

OSG_END_NAMESPACE
