#include "OSGTrain.h"

#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(Train, WagonsField)
OSG_FC_LAST_FIELD_IDM_DEF(Train, WagonsField)

FieldDescription *Train::_desc[] = { new FieldDescription(MFWagonPtr::getClassType(), "wagons",
    OSG_FC_FIELD_IDM_DESC(Train::WagonsField), false, (FieldAccessMethod)&Train::getMFWagons) };

FieldContainerType Train::_type("Train", "AttachmentContainer", NULL,
    (PrototypeCreateF)&Train::createEmpty, NULL, Train::_desc, sizeof(Train::_desc));

OSG_FIELD_CONTAINER_DEF(Train, TrainPtr)

OSG_END_NAMESPACE
