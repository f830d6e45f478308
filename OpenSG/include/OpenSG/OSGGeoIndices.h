#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGGeoIndicesBase.h>

OSG_BEGIN_NAMESPACE

/// Indices into the other properties.
class GeoIndices : public AbstractGeoProperty<GeoIndicesBase, UInt32>
{
    typedef AbstractGeoProperty<GeoIndicesBase, UInt32> Inherited;

protected:
    friend class FieldContainer;

    GeoIndices() = default;
    GeoIndices(const GeoIndices &) = default;
    ~GeoIndices() override = default;
};

OSG_END_NAMESPACE
