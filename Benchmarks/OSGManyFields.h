#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>

#include <array>

OSG_BEGIN_NAMESPACE

class ManyFields;
typedef FCPtr<AttachmentPtr, ManyFields> ManyFieldsPtr;

/// An attachment with many fields of its own, a quarter each of real numbers, integers, texts and
/// vectors. One indexed access method returns any of them.
class ManyFields : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef ManyFieldsPtr Ptr;

    static constexpr UInt32 fieldCount = 400;

    OSG_FC_FIRST_FIELD_IDM_DECL(OwnField)

    OSG_FIELD_CONTAINER_DECL(ManyFieldsPtr)

    /// By field id.
    Field *getOwnField(UInt32 id);

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

protected:
    ManyFields();
    ManyFields(const ManyFields &source);
    ~ManyFields() override;

    std::array<SFReal32, fieldCount / 4> _sfReals;
    std::array<SFInt32, fieldCount / 4> _sfIntegers;
    std::array<SFString, fieldCount / 4> _sfTexts;
    std::array<SFVec3f, fieldCount / 4> _sfVectors;

private:
    friend class FieldContainer;
    static FieldDescription **describe();
    static FieldContainerType _type;

    void operator=(const ManyFields &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(ManyFields, ManyFieldsPtr)

OSG_END_NAMESPACE
