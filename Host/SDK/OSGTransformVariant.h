#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

class TransformVariant;
typedef FCPtr<AttachmentContainerPtr, TransformVariant> TransformVariantPtr;

template <>
struct KAVO_SDK_EXPORT FieldDataTraits<TransformVariantPtr>
    : public FieldTraitsRecurseMapper<TransformVariantPtr, true>
{
    static DataType _type;

    enum { StringConvertable = 0x00 };
    enum { bHasParent = 0x01 };

    static DataType &getType() { return _type; }
    static const char *getSName() { return "SFTransformVariantPtr"; }
    static const char *getMName() { return "MFTransformVariantPtr"; }
};

typedef SField<TransformVariantPtr> SFTransformVariantPtr;
typedef MField<TransformVariantPtr> MFTransformVariantPtr;

// Makes libraries with hidden symbols share one object for each field type.
template <> KAVO_SDK_EXPORT FieldType SField<TransformVariantPtr>::_fieldType;
template <> KAVO_SDK_EXPORT FieldType MField<TransformVariantPtr>::_fieldType;

/// One possible place of an object: a label and the matrix.
class KAVO_SDK_EXPORT TransformVariant : public AttachmentContainer
{
    typedef AttachmentContainer Inherited;

public:
    typedef TransformVariantPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(LabelField)
    OSG_FC_FIELD_IDM_DECL(MatrixField, LabelField)
    OSG_FC_LAST_FIELD_IDM_DECL(MatrixField)

    OSG_FIELD_CONTAINER_DECL(TransformVariantPtr)

    SFString *getSFLabel() { return &_sfLabel; }
    std::string &getLabel() { return _sfLabel.getValue(); }
    const std::string &getLabel() const { return _sfLabel.getValue(); }
    void setLabel(const std::string &value) { _sfLabel.setValue(value); }

    SFMatrix *getSFMatrix() { return &_sfMatrix; }
    Matrix &getMatrix() { return _sfMatrix.getValue(); }
    const Matrix &getMatrix() const { return _sfMatrix.getValue(); }
    void setMatrix(const Matrix &value) { _sfMatrix.setValue(value); }

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

protected:
    TransformVariant();
    TransformVariant(const TransformVariant &source);
    ~TransformVariant() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;
    void executeSyncImpl(TransformVariant *other, const BitVector &which);

    SFString _sfLabel;
    SFMatrix _sfMatrix;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const TransformVariant &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(TransformVariant, TransformVariantPtr)

OSG_END_NAMESPACE
