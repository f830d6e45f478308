#include "OSGBoxSampler.h"

#include <OpenSG/OSGFieldDescription.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(BoxSampler, BoxField)
OSG_FC_LAST_FIELD_IDM_DEF(BoxSampler, BoxField)

FieldDescription *BoxSampler::_desc[] = {
    new FieldDescription(SFBoxVolume::getClassType(), "box",
        OSG_FC_FIELD_IDM_DESC(BoxSampler::BoxField), false,
        (FieldAccessMethod)&BoxSampler::getSFBox),
};

FieldContainerType BoxSampler::_type(
    "BoxSampler", "Attachment", nullptr,
    []() -> FieldContainerPtr { return BoxSampler::createEmpty(); }, nullptr, BoxSampler::_desc,
    sizeof(BoxSampler::_desc));

OSG_FIELD_CONTAINER_DEF(BoxSampler, BoxSamplerPtr)

BoxSampler::BoxSampler() = default;

BoxSampler::BoxSampler(const BoxSampler &) = default;

BoxSampler::~BoxSampler() = default;

void BoxSampler::dump(UInt32, const BitVector) const
{
}

void BoxSampler::executeSync(FieldContainer &, const BitVector &)
{
}

OSG_END_NAMESPACE
