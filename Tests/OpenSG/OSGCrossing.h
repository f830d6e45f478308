#pragma once

#include "OSGTrack.h"

#include <OpenSG/OSGNodeFields.h>
#include <OpenSG/OSGSFSysTypes.h>

OSG_BEGIN_NAMESPACE

class Crossing;
typedef FCPtr<TrackPtr, Crossing> CrossingPtr;

/// A core with a list of nodes, by the macros.
class Crossing : public Track
{
    typedef Track Inherited;

public:
    typedef CrossingPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(RoadsField)
    OSG_FC_FIELD_IDM_DECL(LightsField, RoadsField)
    OSG_FC_LAST_FIELD_IDM_DECL(LightsField)
    OSG_FIELD_CONTAINER_DECL(CrossingPtr)

    MFNodePtr *getMFRoads(void) { return &_mfRoads; }
    MFNodePtr &getRoads(void) { return _mfRoads; }
    SFBool *getSFLights(void) { return &_sfLights; }

    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

protected:
    Crossing(void)
        : Inherited()
        , _mfRoads()
        , _sfLights(true)
    {
    }
    Crossing(const Crossing &source)
        : Inherited(source)
        , _mfRoads(source._mfRoads)
        , _sfLights(source._sfLights)
    {
    }
    virtual ~Crossing(void) { }

    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        Inherited::executeSyncImpl(static_cast<Crossing *>(&other), which);
    }

    MFNodePtr _mfRoads;
    SFBool _sfLights;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Crossing &);
};

OSG_FIELD_CONTAINER_INL_DEF(Crossing, CrossingPtr)

OSG_END_NAMESPACE
