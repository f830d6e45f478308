#include "OSGParentLink.h"

#include <OpenSG/OSGFieldDescription.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(ParentLink, ParentsField)
OSG_FC_LAST_FIELD_IDM_DEF(ParentLink, ParentsField)

FieldDescription *ParentLink::_desc[] = {
    new FieldDescription(SFNodePtr::getClassType(), "parents",
        OSG_FC_FIELD_IDM_DESC(ParentLink::ParentsField), false,
        (FieldAccessMethod)&ParentLink::getSFParents),
};

FieldContainerType ParentLink::_type(
    "ParentLink", "FieldContainer", nullptr,
    []() -> FieldContainerPtr { return ParentLink::createEmpty(); }, nullptr, ParentLink::_desc,
    sizeof(ParentLink::_desc));

OSG_FIELD_CONTAINER_DEF(ParentLink, ParentLinkPtr)

ParentLink::ParentLink() = default;

ParentLink::ParentLink(const ParentLink &) = default;

ParentLink::~ParentLink() = default;

void ParentLink::dump(UInt32, const BitVector) const
{
}

void ParentLink::executeSync(FieldContainer &, const BitVector &)
{
}

OSG_END_NAMESPACE
