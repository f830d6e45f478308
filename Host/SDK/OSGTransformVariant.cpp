#include <OSGTransformVariant.h>

#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

OSG_BEGIN_NAMESPACE

DataType FieldDataTraits<TransformVariantPtr>::_type(
    "TransformVariantPtr", "AttachmentContainerPtr");

OSG_DLLEXPORT_SFIELD_DEF1(TransformVariantPtr, );
OSG_DLLEXPORT_MFIELD_DEF1(TransformVariantPtr, );

OSG_FC_FIRST_FIELD_IDM_DEF(TransformVariant, LabelField)
OSG_FC_FIELD_IDM_DEF(TransformVariant, MatrixField, LabelField)
OSG_FC_LAST_FIELD_IDM_DEF(TransformVariant, MatrixField)

FieldDescription *TransformVariant::_desc[] = {
    new FieldDescription(SFString::getClassType(), "label",
        OSG_FC_FIELD_IDM_DESC(TransformVariant::LabelField), false,
        (FieldAccessMethod)&TransformVariant::getSFLabel),
    new FieldDescription(SFMatrix::getClassType(), "matrix",
        OSG_FC_FIELD_IDM_DESC(TransformVariant::MatrixField), false,
        (FieldAccessMethod)&TransformVariant::getSFMatrix),
};

FieldContainerType TransformVariant::_type(
    "TransformVariant", "AttachmentContainer", nullptr,
    []() -> FieldContainerPtr { return TransformVariant::createEmpty(); }, nullptr,
    TransformVariant::_desc, sizeof(TransformVariant::_desc));

OSG_FIELD_CONTAINER_DEF(TransformVariant, TransformVariantPtr)

TransformVariant::TransformVariant() = default;

TransformVariant::TransformVariant(const TransformVariant &source)
    : Inherited(source)
    , _sfLabel(source._sfLabel)
    , _sfMatrix(source._sfMatrix)
{
}

TransformVariant::~TransformVariant() = default;

void TransformVariant::dump(UInt32, const BitVector) const
{
    SLOG << "TransformVariant " << _sfLabel.getValue() << endLog;
}

void TransformVariant::executeSync(FieldContainer &other, const BitVector &which)
{
    executeSyncImpl(static_cast<TransformVariant *>(&other), which);
}

void TransformVariant::executeSyncImpl(TransformVariant *other, const BitVector &which)
{
    Inherited::executeSyncImpl(other, which);
    if (which & LabelFieldMask)
        _sfLabel.syncWith(other->_sfLabel);
    if (which & MatrixFieldMask)
        _sfMatrix.syncWith(other->_sfMatrix);
}

OSG_END_NAMESPACE
