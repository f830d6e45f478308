#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGGeoTexCoordsBase.h>
#include <OpenSG/OSGVector.h>

OSG_BEGIN_NAMESPACE

/// Texture coordinates of the vertices.
class GeoTexCoords : public AbstractGeoProperty<GeoTexCoordsBase, Vec2f>
{
    typedef AbstractGeoProperty<GeoTexCoordsBase, Vec2f> Inherited;

protected:
    friend class FieldContainer;

    GeoTexCoords() = default;
    GeoTexCoords(const GeoTexCoords &) = default;
    ~GeoTexCoords() override = default;
};

OSG_END_NAMESPACE
