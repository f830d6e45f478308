#include <OpenSG/OSGFieldType.h>

OSG_BEGIN_NAMESPACE

FieldType::FieldType(const Char8 *szName, const Char8 *szParentName, const DataType &contentType,
    CreateFieldMethod createMethod, Cardinality cardinality)
    : FieldType(szName, szParentName, contentType, createMethod, cardinality, *this)
{
}

FieldType::FieldType(const Char8 *szName, const Char8 *szParentName, const DataType &contentType,
    CreateFieldMethod createMethod, Cardinality cardinality, const FieldType &pScanAsType)
    : DataType(szName, szParentName)
    , _contentType(contentType)
    , _createMethod(createMethod)
    , _cardinality(cardinality)
    , _scanAsType(pScanAsType)
{
}

OSG_END_NAMESPACE
