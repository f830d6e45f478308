#pragma once

#include "OSGTrackFields.h"

#include <OpenSG/OSGNodeCore.h>

OSG_BEGIN_NAMESPACE

class Track;
typedef FCPtr<NodeCorePtr, Track> TrackPtr;

/// An abstract class, by the macros, with fields of value types of its own.
class Track : public NodeCore
{
    typedef NodeCore Inherited;

public:
    typedef TrackPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(GaugeField)
    OSG_FC_FIELD_IDM_DECL(LengthsField, GaugeField)
    OSG_FC_LAST_FIELD_IDM_DECL(LengthsField)
    OSG_ABSTR_FIELD_CONTAINER_DECL(TrackPtr)

    SFGauge *getSFGauge(void) { return &_sfGauge; }
    MFMetres *getMFLengths(void) { return &_mfLengths; }
    MFMetres &getLengths(void) { return _mfLengths; }

protected:
    Track(void)
        : Inherited()
        , _sfGauge()
        , _mfLengths()
    {
    }
    Track(const Track &source)
        : Inherited(source)
        , _sfGauge(source._sfGauge)
        , _mfLengths(source._mfLengths)
    {
    }
    virtual ~Track(void) { }

    SFGauge _sfGauge;
    MFMetres _mfLengths;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Track &);
};

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(Track, TrackPtr)

OSG_END_NAMESPACE
