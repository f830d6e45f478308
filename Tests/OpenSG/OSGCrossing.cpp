#include "OSGCrossing.h"

#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(Crossing, RoadsField)
OSG_FC_FIELD_IDM_DEF(Crossing, LightsField, RoadsField)
OSG_FC_LAST_FIELD_IDM_DEF(Crossing, LightsField)

FieldDescription *Crossing::_desc[] = { new FieldDescription(MFNodePtr::getClassType(), "roads",
                                            OSG_FC_FIELD_IDM_DESC(Crossing::RoadsField), false,
                                            (FieldAccessMethod)&Crossing::getMFRoads),
    new FieldDescription(SFBool::getClassType(), "lights",
        OSG_FC_FIELD_IDM_DESC(Crossing::LightsField), true,
        (FieldAccessMethod)&Crossing::getSFLights) };

FieldContainerType Crossing::_type("Crossing", "Track", "crossroads",
    (PrototypeCreateF)&Crossing::createEmpty, NULL, Crossing::_desc, sizeof(Crossing::_desc));

OSG_FIELD_CONTAINER_DEF(Crossing, CrossingPtr)

OSG_END_NAMESPACE
