#pragma once

#include <OpenSG/OSGLightBase.h>

OSG_BEGIN_NAMESPACE

/// A core that lights the subtree of its node. Another node, the beacon, defines the position of
/// the light. The light holds no reference to the beacon.
class Light : public LightBase
{
    typedef LightBase Inherited;

public:
    using Inherited::setAmbient;
    using Inherited::setDiffuse;
    using Inherited::setSpecular;
    void setAmbient(Real32 r, Real32 g, Real32 b, Real32 a) { setAmbient(Color4f(r, g, b, a)); }
    void setDiffuse(Real32 r, Real32 g, Real32 b, Real32 a) { setDiffuse(Color4f(r, g, b, a)); }
    void setSpecular(Real32 r, Real32 g, Real32 b, Real32 a) { setSpecular(Color4f(r, g, b, a)); }

protected:
    friend class FieldContainer;

    Light() = default;
    Light(const Light &) = default;
    ~Light() override = default;
};

OSG_END_NAMESPACE
