#include "OSGWagon.h"

#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>

#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

OSG_BEGIN_NAMESPACE

DataType FieldDataTraits<WagonPtr>::_type("WagonPtr", "AttachmentContainerPtr");
OSG_DLLEXPORT_SFIELD_DEF1(WagonPtr, );
OSG_DLLEXPORT_MFIELD_DEF1(WagonPtr, );

OSG_FC_FIRST_FIELD_IDM_DEF(Wagon, LoadField)
OSG_FC_LAST_FIELD_IDM_DEF(Wagon, LoadField)

FieldDescription *Wagon::_desc[] = { new FieldDescription(SFReal32::getClassType(), "load",
    OSG_FC_FIELD_IDM_DESC(Wagon::LoadField), false, (FieldAccessMethod)&Wagon::getSFLoad) };

FieldContainerType Wagon::_type("Wagon", "AttachmentContainer", NULL,
    (PrototypeCreateF)&Wagon::createEmpty, NULL, Wagon::_desc, sizeof(Wagon::_desc));

OSG_FIELD_CONTAINER_DEF(Wagon, WagonPtr)

OSG_END_NAMESPACE
