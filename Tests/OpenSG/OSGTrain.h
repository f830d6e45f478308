#pragma once

#include "OSGWagon.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

OSG_BEGIN_NAMESPACE

class Train;
typedef FCPtr<AttachmentContainerPtr, Train> TrainPtr;

/// Holds wagons. Pointer fields count no references, so the class does, from the end of an edit on.
class Train : public AttachmentContainer
{
    typedef AttachmentContainer Inherited;

public:
    typedef TrainPtr Ptr;
    OSG_FC_FIRST_FIELD_IDM_DECL(WagonsField)
    OSG_FC_LAST_FIELD_IDM_DECL(WagonsField)
    OSG_FIELD_CONTAINER_DECL(TrainPtr)

    MFWagonPtr *getMFWagons(void) { return &_mfWagons; }
    MFWagonPtr &getWagons(void) { return _mfWagons; }
    void addWagon(const WagonPtr &wagon)
    {
        _mfWagons.push_back(wagon);
        hold();
    }

    virtual void changed(BitVector whichField, UInt32 origin)
    {
        hold();
        Inherited::changed(whichField, origin);
    }

    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

protected:
    Train(void)
        : Inherited()
        , _mfWagons()
    {
    }
    Train(const Train &source)
        : Inherited(source)
        , _mfWagons(source._mfWagons)
    {
        hold();
    }
    virtual ~Train(void) { }

    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<Train *>(&other), which);
    }

    MFWagonPtr _mfWagons;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Train &);

    void hold(void)
    {
        std::vector<RefPtr<WagonPtr>>(_mfWagons.begin(), _mfWagons.end()).swap(_held);
    }

    std::vector<RefPtr<WagonPtr>> _held;
};

OSG_FIELD_CONTAINER_INL_DEF(Train, TrainPtr)

OSG_END_NAMESPACE
