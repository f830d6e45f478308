#include "OSGTrack.h"

#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>

#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

OSG_BEGIN_NAMESPACE

DataType FieldDataTraits<Gauge>::_type("Gauge", "BaseType");
OSG_DLLEXPORT_SFIELD_DEF1(Gauge, );
OSG_DLLEXPORT_MFIELD_DEF1(Gauge, );

DataType FieldDataTraits1<Metres>::_type("Metres", "BaseType");
OSG_DLLEXPORT_SFIELD_DEF2(Metres, 1, );
OSG_DLLEXPORT_MFIELD_DEF2(Metres, 1, );

OSG_FC_FIRST_FIELD_IDM_DEF(Track, GaugeField)
OSG_FC_FIELD_IDM_DEF(Track, LengthsField, GaugeField)
OSG_FC_LAST_FIELD_IDM_DEF(Track, LengthsField)

FieldDescription *Track::_desc[] = {
    new FieldDescription(SFGauge::getClassType(), "gauge", OSG_FC_FIELD_IDM_DESC(Track::GaugeField),
        false, (FieldAccessMethod)&Track::getSFGauge),
    new FieldDescription(MFMetres::getClassType(), "lengths",
        OSG_FC_FIELD_IDM_DESC(Track::LengthsField), false, (FieldAccessMethod)&Track::getMFLengths)
};

FieldContainerType Track::_type(
    "Track", "NodeCore", NULL, NULL, NULL, Track::_desc, sizeof(Track::_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(Track, TrackPtr)

OSG_END_NAMESPACE
