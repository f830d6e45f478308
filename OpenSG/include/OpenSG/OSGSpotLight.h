#pragma once

#include <OpenSG/OSGSpotLightBase.h>

OSG_BEGIN_NAMESPACE

/// A cone of light. The field `spotCutOff` is in radians.
class SpotLight : public SpotLightBase
{
    typedef SpotLightBase Inherited;

public:
    void setSpotDirection(Real32 x, Real32 y, Real32 z) { setDirection(Vec3f(x, y, z)); }
    void setSpotCutOffDeg(Real32 degrees) { setSpotCutOff(degrees * Pi / 180.f); }
    Real32 getSpotCutOffDeg() const { return getSpotCutOff() * 180.f / Pi; }

protected:
    friend class FieldContainer;

    SpotLight() = default;
    SpotLight(const SpotLight &) = default;
    ~SpotLight() override = default;
};

OSG_END_NAMESPACE
