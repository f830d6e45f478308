#pragma once

#include <OpenSG/OSGSField.h>
#include <OpenSG/OSGSysFieldDataType.h>

OSG_BEGIN_NAMESPACE

OSG_SYS_VALUE_TYPES(OSG_VALUE_SFIELD)

typedef SField<Real16> SFReal16;

OSG_END_NAMESPACE
