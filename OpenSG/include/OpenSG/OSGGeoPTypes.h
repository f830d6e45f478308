#pragma once

#include <OpenSG/OSGAbstractGeoProperty.h>
#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGGeoPTypesBase.h>

OSG_BEGIN_NAMESPACE

/// OpenGL type of each primitive.
class GeoPTypes : public AbstractGeoProperty<GeoPTypesBase, UInt8>
{
    typedef AbstractGeoProperty<GeoPTypesBase, UInt8> Inherited;

protected:
    friend class FieldContainer;

    GeoPTypes() = default;
    GeoPTypes(const GeoPTypes &) = default;
    ~GeoPTypes() override = default;
};

OSG_END_NAMESPACE
