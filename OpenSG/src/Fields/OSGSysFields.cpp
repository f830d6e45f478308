#include "Fields/OSGValueFieldDefs.h"

#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGSFSysTypes.h>

#include <strings.h>

OSG_BEGIN_NAMESPACE

template <> bool BoolFieldTraits<bool>::getFromString(bool &outVal, const Char8 *&inVal)
{
    const bool isTrue = strncasecmp(inVal, "true", 4) == 0;
    const bool isRead = isTrue || strncasecmp(inVal, "false", 5) == 0;
    outVal = isRead ? isTrue : outVal;
    return isRead;
}

OSG_SYS_VALUE_TYPES(OSG_VALUE_DEFINITION)

DataType FieldDataTraits<Real16>::_type("Real16", "IntegralType");

OSG_END_NAMESPACE
