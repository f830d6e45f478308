#pragma once

#include <OSGTransformVariant.h>
#include <kavoSDKExport.h>

#include <OpenSG/OSGAttachment.h>

#include <vector>

OSG_BEGIN_NAMESPACE

class TransformVariantList;
typedef FCPtr<AttachmentPtr, TransformVariantList> TransformVariantListPtr;

/// Attachment with the transform variants of a node; elements may be null. It holds a reference to
/// each variant, from addVariant() on or from the end of an edit of the field.
class KAVO_SDK_EXPORT TransformVariantList : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef TransformVariantListPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(VariantsField)
    OSG_FC_LAST_FIELD_IDM_DECL(VariantsField)

    OSG_FIELD_CONTAINER_DECL(TransformVariantListPtr)

    MFTransformVariantPtr *getMFVariants() { return &_mfVariants; }
    const MFTransformVariantPtr &getVariants() const { return _mfVariants; }
    void addVariant(const TransformVariantPtr &variant);
    void clearVariants();

    void changed(BitVector which, UInt32 origin) override;
    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

protected:
    TransformVariantList();
    TransformVariantList(const TransformVariantList &source);
    ~TransformVariantList() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;
    void executeSyncImpl(TransformVariantList *other, const BitVector &which);

    MFTransformVariantPtr _mfVariants;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const TransformVariantList &) = delete;
    void holdVariants();

    std::vector<TransformVariantPtr> _held;
};

OSG_FIELD_CONTAINER_INL_DEF(TransformVariantList, TransformVariantListPtr)

OSG_END_NAMESPACE
