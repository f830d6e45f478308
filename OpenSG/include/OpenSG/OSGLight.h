#pragma once

#include <OpenSG/OSGLightBase.h>

OSG_BEGIN_NAMESPACE

/// A light is a core: it lights the subtree of its node, and shines from the place of another
/// node, its beacon. It holds no reference to the beacon.
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
