#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

class Wagon;
typedef FCPtr<AttachmentContainerPtr, Wagon> WagonPtr;

template <> struct FieldDataTraits<WagonPtr> : public FieldTraitsRecurseMapper<WagonPtr, true>
{
    static DataType _type;
    enum { StringConvertable = 0x00 };
    enum { bHasParent = 0x01 };
    static DataType &getType(void) { return _type; }
    static const char *getSName(void) { return "SFWagonPtr"; }
    static const char *getMName(void) { return "MFWagonPtr"; }
};

typedef SField<WagonPtr> SFWagonPtr;
typedef MField<WagonPtr> MFWagonPtr;

/// A container with fields of its own handle type.
class Wagon : public AttachmentContainer
{
    typedef AttachmentContainer Inherited;

public:
    typedef WagonPtr Ptr;
    OSG_FC_FIRST_FIELD_IDM_DECL(LoadField)
    OSG_FC_LAST_FIELD_IDM_DECL(LoadField)
    OSG_FIELD_CONTAINER_DECL(WagonPtr)

    SFReal32 *getSFLoad(void) { return &_sfLoad; }
    Real32 &getLoad(void) { return _sfLoad.getValue(); }
    void setLoad(const Real32 &value) { _sfLoad.setValue(value); }

    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

protected:
    Wagon(void)
        : Inherited()
        , _sfLoad(Real32(1.5f))
    {
    }
    Wagon(const Wagon &source)
        : Inherited(source)
        , _sfLoad(source._sfLoad)
    {
    }
    virtual ~Wagon(void) { }

    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<Wagon *>(&other), which);
    }

    SFReal32 _sfLoad;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Wagon &);
};

OSG_FIELD_CONTAINER_INL_DEF(Wagon, WagonPtr)

OSG_END_NAMESPACE
