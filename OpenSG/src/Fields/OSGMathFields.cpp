#include "Fields/OSGValueFieldDefs.h"

#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGSFMathTypes.h>

OSG_BEGIN_NAMESPACE

OSG_MATH_VALUE_TYPES(OSG_VALUE_DEFINITION)

OSG_END_NAMESPACE
