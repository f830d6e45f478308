#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGGeoPLengthsBase.h>

OSG_BEGIN_NAMESPACE

/// Number of vertices or indices of each primitive.
class GeoPLengths : public AbstractGeoProperty<GeoPLengthsBase, UInt32>
{
    typedef AbstractGeoProperty<GeoPLengthsBase, UInt32> Inherited;

protected:
    friend class FieldContainer;

    GeoPLengths() = default;
    GeoPLengths(const GeoPLengths &) = default;
    ~GeoPLengths() override = default;
};

OSG_END_NAMESPACE
