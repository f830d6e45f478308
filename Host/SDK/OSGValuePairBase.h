#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGMFBaseTypes.h>

OSG_BEGIN_NAMESPACE

class ValuePairBase;
typedef FCPtr<AttachmentPtr, ValuePairBase> ValuePairBasePtr;

/// Attachment with pairs of keys and values: keys[i] belongs to values[i]. The lists may differ in
/// length, so readers must allow for missing values.
class KAVO_SDK_EXPORT ValuePairBase : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef ValuePairBasePtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(KeysField)
    OSG_FC_FIELD_IDM_DECL(ValuesField, KeysField)
    OSG_FC_LAST_FIELD_IDM_DECL(ValuesField)

    OSG_FIELD_CONTAINER_DECL(ValuePairBasePtr)

    MFString *getMFKeys() { return &_mfKeys; }
    MFString *getMFValues() { return &_mfValues; }
    MFString &getKeys() { return _mfKeys; }
    const MFString &getKeys() const { return _mfKeys; }
    MFString &getValues() { return _mfValues; }
    const MFString &getValues() const { return _mfValues; }

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

protected:
    ValuePairBase();
    ValuePairBase(const ValuePairBase &source);
    ~ValuePairBase() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;
    void executeSyncImpl(ValuePairBase *other, const BitVector &which);

    MFString _mfKeys;
    MFString _mfValues;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const ValuePairBase &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(ValuePairBase, ValuePairBasePtr)

OSG_END_NAMESPACE
