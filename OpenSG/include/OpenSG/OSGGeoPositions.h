#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGGeoPositionsBase.h>
#include <OpenSG/OSGVector.h>

OSG_BEGIN_NAMESPACE

/// Positions of the vertices.
class GeoPositions : public AbstractGeoProperty<GeoPositionsBase, Pnt3f>
{
    typedef AbstractGeoProperty<GeoPositionsBase, Pnt3f> Inherited;

protected:
    friend class FieldContainer;

    GeoPositions() = default;
    GeoPositions(const GeoPositions &) = default;
    ~GeoPositions() override = default;
};

OSG_END_NAMESPACE
