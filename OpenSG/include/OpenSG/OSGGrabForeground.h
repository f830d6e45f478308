#pragma once

#include <OpenSG/OSGGrabForegroundBase.h>

OSG_BEGIN_NAMESPACE

/// Copies the picture of the viewport into an image. Unlike other foregrounds it is inactive by
/// default.
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
