#include <OpenSG/OSGFieldDescription.h>

#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

FieldDescription::FieldDescription(const TypeBase &elementType, const Char8 *szName,
    const UInt32 uiFieldId, const BitVector vFieldMask, const bool bInternal,
    FieldAccessMethod fAccessMethod, const Char8 *defaultValue)
    : _fieldType(elementType)
    , _name(szName)
    , _fieldId(uiFieldId)
    , _fieldMask(vFieldMask)
    , _internal(bInternal)
    , _defaultValue(defaultValue)
    , _accessMethod(fAccessMethod)
{
}

FieldDescription::FieldDescription(const TypeBase &elementType, const Char8 *szName,
    const UInt32 uiFieldId, const BitVector vFieldMask, const bool bInternal,
    FieldIndexAccessMethod fIndexedAccessMethod, const Char8 *defaultValue)
    : FieldDescription(elementType, szName, uiFieldId, vFieldMask, bInternal,
        FieldAccessMethod(nullptr), defaultValue)
{
    _indexAccessMethod = fIndexedAccessMethod;
}

FieldDescription::FieldDescription(const TypeBase &elementType, const Char8 *szName,
    const UInt32 uiFieldId, const BitVector vFieldMask, const bool bInternal,
    FieldAccessFunction accessFunction, const Char8 *defaultValue)
    : FieldDescription(elementType, szName, uiFieldId, vFieldMask, bInternal,
        FieldAccessMethod(nullptr), defaultValue)
{
    _accessFunction = accessFunction;
}

FieldDescription::FieldDescription(const FieldDescription &source) = default;

Field *FieldDescription::getField(FieldContainer &dataStore) const
{
    if (_accessFunction) {
        return _accessFunction(dataStore);
    }
    if (_accessMethod) {
        return (dataStore.*_accessMethod)();
    }
    if (_indexAccessMethod) {
        return (dataStore.*_indexAccessMethod)(_fieldId);
    }
    SWARNING << "No accessMethod for " << getCName() << endLog;
    return nullptr;
}

OSG_END_NAMESPACE
