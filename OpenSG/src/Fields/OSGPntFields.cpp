#include "Fields/OSGValueFieldDefs.h"

#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGSFVecTypes.h>

OSG_BEGIN_NAMESPACE

OSG_PNT_VALUE_TYPES(OSG_VALUE_DEFINITION)

OSG_END_NAMESPACE
