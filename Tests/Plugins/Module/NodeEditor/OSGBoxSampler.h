#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGBoxVolumeFields.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>

OSG_BEGIN_NAMESPACE

class BoxSampler;
typedef FCPtr<AttachmentPtr, BoxSampler> BoxSamplerPtr;

/// Test container with a box volume, a field type that stock OpenSG does not have.
class BoxSampler : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef BoxSamplerPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(BoxField)
    OSG_FC_LAST_FIELD_IDM_DECL(BoxField)

    OSG_FIELD_CONTAINER_DECL(BoxSamplerPtr)

    SFBoxVolume *getSFBox() { return &box; }

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

    SFBoxVolume box;

protected:
    BoxSampler();
    BoxSampler(const BoxSampler &source);
    ~BoxSampler() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const BoxSampler &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(BoxSampler, BoxSamplerPtr)

OSG_END_NAMESPACE
