#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGMathFieldDataType.h>

OSG_BEGIN_NAMESPACE

OSG_MATH_VALUE_TYPES(OSG_VALUE_MFIELD)

OSG_END_NAMESPACE
