#include <OpenSG/OSGGeoProperty.h>

OSG_BEGIN_NAMESPACE

#define OSG_DEFINE_GEO_PROPERTY(Name, Base, FieldT, field) template class GeoProperty<Name##Desc>;

OSG_GEO_PROPERTIES(OSG_DEFINE_GEO_PROPERTY)

OSG_END_NAMESPACE
