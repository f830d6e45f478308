#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGNodeFields.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>

OSG_BEGIN_NAMESPACE

class FieldSampler;
typedef FCPtr<AttachmentPtr, FieldSampler> FieldSamplerPtr;

/// Test container with a public field of every kind that the editor distinguishes. It counts the
/// calls of changed() and records the last mask, the last origin and the length of the change list
/// at the last call.
class FieldSampler : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef FieldSamplerPtr Ptr;

    OSG_FIELD_CONTAINER_DECL(FieldSamplerPtr)

    static BitVector maskOf(const char *name);

    void changed(BitVector mask, UInt32 origin) override;
    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

    SFBool flag;
    SFInt8 int8;
    SFUInt8 uint8;
    SFInt16 int16;
    SFUInt16 uint16;
    SFInt32 int32;
    SFUInt32 uint32;
    SFReal32 real32;
    SFReal64 real64;
    SFTime time;
    SFString text;
    SFVec3f vector;
    SFMatrix matrix;
    SFQuaternion quaternion;
    SFGLenum minFilter;
    SFColor3f color3;
    SFColor4f color4;
    SFNodePtr parent;
    SFNodePtr childs;
    SFNodePtr associated;
    SFNodePtr other;
    MFReal32 reals;
    MFInt32 ints;
    MFUInt32 uints;
    MFString texts;
    MFVec3f vectors;
    MFNodePtr nodes;

    /// While it is set, access to any of the fields above and changed() throw an int.
    static bool accessThrows;

    int changes = 0;
    BitVector lastMask = 0;
    UInt32 lastOrigin = ChangedOrigin::Abstract;
    UInt32 listedBeforeChanged = 0;

protected:
    FieldSampler();
    FieldSampler(const FieldSampler &source);
    ~FieldSampler() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;

private:
    friend class FieldContainer;
    template <auto Member> Field *access();
    template <auto Member> static FieldDescription *describe(const char *name);

    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const FieldSampler &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(FieldSampler, FieldSamplerPtr)

OSG_END_NAMESPACE
