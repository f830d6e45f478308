#include <OSGValuePairBase.h>

#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(ValuePairBase, KeysField)
OSG_FC_FIELD_IDM_DEF(ValuePairBase, ValuesField, KeysField)
OSG_FC_LAST_FIELD_IDM_DEF(ValuePairBase, ValuesField)

FieldDescription *ValuePairBase::_desc[] = {
    new FieldDescription(MFString::getClassType(), "keys",
        OSG_FC_FIELD_IDM_DESC(ValuePairBase::KeysField), false,
        (FieldAccessMethod)&ValuePairBase::getMFKeys),
    new FieldDescription(MFString::getClassType(), "values",
        OSG_FC_FIELD_IDM_DESC(ValuePairBase::ValuesField), false,
        (FieldAccessMethod)&ValuePairBase::getMFValues),
};

FieldContainerType ValuePairBase::_type(
    "ValuePairBase", "Attachment", nullptr,
    []() -> FieldContainerPtr { return ValuePairBase::createEmpty(); }, nullptr,
    ValuePairBase::_desc, sizeof(ValuePairBase::_desc));

OSG_FIELD_CONTAINER_DEF(ValuePairBase, ValuePairBasePtr)

ValuePairBase::ValuePairBase() = default;

ValuePairBase::ValuePairBase(const ValuePairBase &source)
    : Inherited(source)
    , _mfKeys(source._mfKeys)
    , _mfValues(source._mfValues)
{
}

ValuePairBase::~ValuePairBase() = default;

void ValuePairBase::dump(UInt32, const BitVector) const
{
    SLOG << "ValuePairBase with " << _mfKeys.getSize() << " keys" << endLog;
}

void ValuePairBase::executeSync(FieldContainer &other, const BitVector &which)
{
    executeSyncImpl(static_cast<ValuePairBase *>(&other), which);
}

void ValuePairBase::executeSyncImpl(ValuePairBase *other, const BitVector &which)
{
    Inherited::executeSyncImpl(other, which);
    if (which & KeysFieldMask)
        _mfKeys.syncWith(other->_mfKeys);
    if (which & ValuesFieldMask)
        _mfValues.syncWith(other->_mfValues);
}

OSG_END_NAMESPACE
