#pragma once

#include <OpenSG/OSGMathFieldDataType.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

OSG_MATH_VALUE_TYPES(OSG_VALUE_SFIELD)

OSG_END_NAMESPACE
