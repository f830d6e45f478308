#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGGeoColorsBase.h>

OSG_BEGIN_NAMESPACE

/// Colours of the vertices.
class GeoColors : public AbstractGeoProperty<GeoColorsBase, Color3f>
{
    typedef AbstractGeoProperty<GeoColorsBase, Color3f> Inherited;

protected:
    friend class FieldContainer;

    GeoColors() = default;
    GeoColors(const GeoColors &) = default;
    ~GeoColors() override = default;
};

OSG_END_NAMESPACE
