#pragma once

#include <OpenSG/OSGBaseFieldDataType.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

OSG_BASE_VALUE_TYPES(OSG_VALUE_SFIELD)

OSG_END_NAMESPACE
