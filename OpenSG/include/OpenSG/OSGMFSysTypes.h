#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSysFieldDataType.h>

OSG_BEGIN_NAMESPACE

OSG_SYS_VALUE_TYPES(OSG_VALUE_MFIELD)

typedef MField<Real16> MFReal16;

OSG_END_NAMESPACE
