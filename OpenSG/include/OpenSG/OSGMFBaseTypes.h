#pragma once

#include <OpenSG/OSGBaseFieldDataType.h>
#include <OpenSG/OSGMField.h>

OSG_BEGIN_NAMESPACE

OSG_BASE_VALUE_TYPES(OSG_VALUE_MFIELD)

typedef MFDynamicVolume MFVolume;

OSG_END_NAMESPACE
