#include <OSGTransformVariantList.h>

#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(TransformVariantList, VariantsField)
OSG_FC_LAST_FIELD_IDM_DEF(TransformVariantList, VariantsField)

FieldDescription *TransformVariantList::_desc[] = {
    new FieldDescription(MFTransformVariantPtr::getClassType(), "variants",
        OSG_FC_FIELD_IDM_DESC(TransformVariantList::VariantsField), false,
        (FieldAccessMethod)&TransformVariantList::getMFVariants),
};

FieldContainerType TransformVariantList::_type(
    "TransformVariantList", "Attachment", nullptr,
    []() -> FieldContainerPtr { return TransformVariantList::createEmpty(); }, nullptr,
    TransformVariantList::_desc, sizeof(TransformVariantList::_desc));

OSG_FIELD_CONTAINER_DEF(TransformVariantList, TransformVariantListPtr)

TransformVariantList::TransformVariantList() = default;

TransformVariantList::TransformVariantList(const TransformVariantList &source)
    : Inherited(source)
    , _mfVariants(source._mfVariants)
{
    holdVariants();
}

TransformVariantList::~TransformVariantList()
{
    clearVariants();
}

void TransformVariantList::addVariant(const TransformVariantPtr &variant)
{
    addRefCP(variant);
    _mfVariants.push_back(variant);
    _held.push_back(variant);
}

void TransformVariantList::clearVariants()
{
    _mfVariants.clear();
    holdVariants();
}

void TransformVariantList::changed(BitVector which, UInt32 origin)
{
    if (which & VariantsFieldMask)
        holdVariants();
    Inherited::changed(which, origin);
}

// Adds the new references first, so that variants that stay in the list are not destroyed in
// between.
void TransformVariantList::holdVariants()
{
    for (const TransformVariantPtr &variant : _mfVariants)
        addRefCP(variant);
    for (const TransformVariantPtr &variant : _held)
        subRefCP(variant);
    _held.assign(_mfVariants.begin(), _mfVariants.end());
}

void TransformVariantList::dump(UInt32, const BitVector) const
{
    SLOG << "TransformVariantList with " << _mfVariants.getSize() << " variants" << endLog;
}

void TransformVariantList::executeSync(FieldContainer &other, const BitVector &which)
{
    executeSyncImpl(static_cast<TransformVariantList *>(&other), which);
}

void TransformVariantList::executeSyncImpl(TransformVariantList *other, const BitVector &which)
{
    Inherited::executeSyncImpl(other, which);
    if (which & VariantsFieldMask)
        _mfVariants.syncWith(other->_mfVariants);
}

OSG_END_NAMESPACE
