#include <OpenSG/OSGSimpleTexturedMaterial.h>

OSG_BEGIN_NAMESPACE

namespace {

constexpr GLenum glNone = 0;
constexpr GLenum glSphereMap = 9218;

} // namespace

SimpleTexturedMaterial::SimpleTexturedMaterial(const SimpleTexturedMaterial &source)
    : Inherited(source)
{
}

void SimpleTexturedMaterial::fillState(State &state)
{
    Inherited::fillState(state);
    createChunks();
    updateTextureChunk();
    updateTexGenChunk();
    if (getImage()) {
        state.addChunk(_textureChunk);
    }
    if (getEnvMap()) {
        state.addChunk(_texGenChunk);
    }
}

void SimpleTexturedMaterial::createChunks()
{
    if (!_textureChunk) {
        _textureChunk = TextureChunk::create();
        _texGenChunk = TexGenChunk::create();
    }
}

void SimpleTexturedMaterial::updateTextureChunk()
{
    beginEditCP(_textureChunk.get());
    _textureChunk->setImage(getImage());
    _textureChunk->setMinFilter(getMinFilter());
    _textureChunk->setMagFilter(getMagFilter());
    _textureChunk->setEnvMode(getEnvMode());
    endEditCP(_textureChunk.get());
}

void SimpleTexturedMaterial::updateTexGenChunk()
{
    const GLenum function = getEnvMap() ? glSphereMap : glNone;
    beginEditCP(_texGenChunk.get());
    _texGenChunk->setGenFuncS(function);
    _texGenChunk->setGenFuncT(function);
    endEditCP(_texGenChunk.get());
}

bool SimpleTexturedMaterial::hasTransparentPart() const
{
    return Inherited::hasTransparentPart() || (getImage() && getImage()->hasAlphaChannel());
}

OSG_END_NAMESPACE
