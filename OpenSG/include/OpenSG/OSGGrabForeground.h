#pragma once

#include <OpenSG/OSGGrabForegroundBase.h>

OSG_BEGIN_NAMESPACE

/// Copies what the viewport shows into an image. Unlike other foregrounds it is not active until
/// it is told to be.
class GrabForeground : public GrabForegroundBase
{
    typedef GrabForegroundBase Inherited;

protected:
    friend class FieldContainer;

    GrabForeground() { setActive(false); }
    GrabForeground(const GrabForeground &) = default;
    ~GrabForeground() override = default;
};

OSG_END_NAMESPACE
