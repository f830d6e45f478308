#pragma once

#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGNodeFields.h>

OSG_BEGIN_NAMESPACE

class ParentLink;
typedef FCPtr<FieldContainerPtr, ParentLink> ParentLinkPtr;

/// Test container with one pointer called "parents". It is no attachment, because attachments have
/// a list with that name.
class ParentLink : public FieldContainer
{
    typedef FieldContainer Inherited;

public:
    typedef ParentLinkPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(ParentsField)
    OSG_FC_LAST_FIELD_IDM_DECL(ParentsField)

    OSG_FIELD_CONTAINER_DECL(ParentLinkPtr)

    SFNodePtr *getSFParents() { return &parents; }

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

    SFNodePtr parents;

protected:
    ParentLink();
    ParentLink(const ParentLink &source);
    ~ParentLink() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const ParentLink &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(ParentLink, ParentLinkPtr)

OSG_END_NAMESPACE
