#include <OpenSG/OSGSimpleMaterial.h>

OSG_BEGIN_NAMESPACE

namespace {

constexpr GLenum glSrcAlpha = 770;
constexpr GLenum glOneMinusSrcAlpha = 771;

Color4f withAlpha(const Color3f &color, Real32 alpha)
{
    return Color4f(color.red(), color.green(), color.blue(), alpha);
}

} // namespace

SimpleMaterial::SimpleMaterial(const SimpleMaterial &source)
    : Inherited(source)
{
}

// The chunks made from the fields come first, so that chunks in the list can replace them.
void SimpleMaterial::fillState(State &state)
{
    createChunks();
    updateMaterialChunk();
    state.addChunk(_materialChunk);
    if (getTransparency() > 0.f) {
        state.addChunk(_blendChunk);
    }
    Inherited::fillState(state);
}

void SimpleMaterial::createChunks()
{
    if (_materialChunk) {
        return;
    }
    _materialChunk = MaterialChunk::create();
    _blendChunk = BlendChunk::create();
    _blendChunk->setSrcFactor(glSrcAlpha);
    _blendChunk->setDestFactor(glOneMinusSrcAlpha);
}

void SimpleMaterial::updateMaterialChunk()
{
    const Real32 alpha = 1.f - getTransparency();
    beginEditCP(_materialChunk.get());
    _materialChunk->setAmbient(withAlpha(getAmbient(), alpha));
    _materialChunk->setDiffuse(withAlpha(getDiffuse(), alpha));
    _materialChunk->setSpecular(withAlpha(getSpecular(), alpha));
    _materialChunk->setEmission(withAlpha(getEmission(), alpha));
    _materialChunk->setShininess(getShininess());
    _materialChunk->setLit(getLit());
    _materialChunk->setColorMaterial(getColorMaterial());
    endEditCP(_materialChunk.get());
}

bool SimpleMaterial::hasTransparentPart() const
{
    return getTransparency() > 0.f || Inherited::hasTransparentPart();
}

OSG_END_NAMESPACE
