#include <OpenSG/OSGMaterial.h>

OSG_BEGIN_NAMESPACE

MaterialPtr NullMaterial;

Material::Material(const Material &source)
    : Inherited(source)
{
}

StatePtr Material::makeState()
{
    const StatePtr state = State::create();
    fillState(*state);
    return state;
}

void Material::rebuildState()
{
    if (!_state) {
        _state = State::create();
    }
    _state->clearChunks();
    fillState(*_state);
}

StatePtr Material::getState(UInt32)
{
    if (!_state) {
        rebuildState();
    }
    return _state;
}

bool Material::isTransparent() const
{
    const Int32 mode = getTransparencyMode();
    return mode == TransparencyAutoDetection ? hasTransparentPart()
                                             : mode == TransparencyForceTransparent;
}

void Material::changed(BitVector whichField, UInt32 origin)
{
    rebuildState();
    Inherited::changed(whichField, origin);
}

OSG_END_NAMESPACE
