#include "Import/kavoMaterialBuilder.h"

#include "Import/kavoAssimpTypes.h"
#include "Import/kavoTextureSlot.h"

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTwoSidedLightingChunk.h>
#include <algorithm>
#include <assimp/GltfMaterial.h>
#include <assimp/material.h>
#include <qopengl.h>

namespace {

constexpr float maxShininess = 128;

template <class Value, class... Key>
Value read(const aiMaterial &material, Value fallback, Key... key)
{
    material.Get(key..., fallback);
    return fallback;
}

osg::Color4f toColor(const aiColor4D &c, float scale, float alpha)
{
    return kavoAssimpTypes::toColor(aiColor4D(c.r * scale, c.g * scale, c.b * scale, alpha));
}

float opacity(const aiMaterial &material)
{
    const aiColor4D diffuse = read(material, aiColor4D(1, 1, 1, 1), AI_MATKEY_COLOR_DIFFUSE);
    const float value = read(material, 1.0f, AI_MATKEY_OPACITY) * diffuse.a;
    // Some exporters write the transparency instead: 0 then means opaque.
    return value > 0 ? std::min(value, 1.0f) : 1.0f;
}

bool isTransparent(const aiMaterial &material)
{
    const aiString mode = read(material, aiString(), AI_MATKEY_GLTF_ALPHAMODE);
    return opacity(material) < 1 || mode == aiString("BLEND");
}

bool isTwoSided(const aiMaterial &material)
{
    return read(material, 0, AI_MATKEY_TWOSIDED) != 0;
}

osg::StateChunkPtr buildMaterialChunk(const aiMaterial &material)
{
    const aiColor4D white(1, 1, 1, 1), grey(.2f, .2f, .2f, 1), black(0, 0, 0, 1);
    const float strength = read(material, 1.0f, AI_MATKEY_SHININESS_STRENGTH);
    const int shading = read(material, int(aiShadingMode_Phong), AI_MATKEY_SHADING_MODEL);
    const float shininess = read(material, 10.0f, AI_MATKEY_SHININESS);
    auto chunk = osg::MaterialChunk::create();
    const osg::CPEditor edit(chunk);
    chunk->setDiffuse(
        toColor(read(material, white, AI_MATKEY_COLOR_DIFFUSE), 1, opacity(material)));
    chunk->setAmbient(toColor(read(material, grey, AI_MATKEY_COLOR_AMBIENT), 1, 1));
    chunk->setSpecular(toColor(read(material, black, AI_MATKEY_COLOR_SPECULAR), strength, 1));
    chunk->setEmission(toColor(read(material, black, AI_MATKEY_COLOR_EMISSIVE), 1, 1));
    chunk->setShininess(std::clamp(shininess, 0.0f, maxShininess));
    chunk->setLit(shading != aiShadingMode_NoShading);
    return chunk;
}

GLenum wrapMode(aiTextureMapMode mode)
{
    switch (mode) {
    case aiTextureMapMode_Clamp:
        return GL_CLAMP_TO_EDGE;
    case aiTextureMapMode_Decal:
        return GL_CLAMP_TO_BORDER;
    case aiTextureMapMode_Mirror:
        return GL_MIRRORED_REPEAT;
    default:
        return GL_REPEAT;
    }
}

osg::StateChunkPtr buildTextureChunk(const aiMaterial &material, osg::ImagePtr image)
{
    const kavoTextureSlot slot = kavoTextureSlot::of(material);
    auto chunk = osg::TextureChunk::create();
    const osg::CPEditor edit(chunk);
    chunk->setImage(image);
    chunk->setWrapS(wrapMode(slot.wrapS));
    chunk->setWrapT(wrapMode(slot.wrapT));
    chunk->setEnvMode(GL_MODULATE);
    return chunk;
}

osg::StateChunkPtr buildBlendChunk()
{
    auto chunk = osg::BlendChunk::create();
    const osg::CPEditor edit(chunk);
    chunk->setSrcFactor(GL_SRC_ALPHA);
    chunk->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
    return chunk;
}

osg::StateChunkPtr buildPolygonChunk(const aiMaterial &material)
{
    // Without the property, back faces may be visible.
    const bool oneSided = read(material, 1, AI_MATKEY_TWOSIDED) == 0;
    auto chunk = osg::PolygonChunk::create();
    const osg::CPEditor edit(chunk);
    chunk->setCullFace(oneSided ? GL_BACK : GL_NONE);
    return chunk;
}

} // namespace

osg::ChunkMaterialPtr kavoMaterialBuilder::build(const aiMaterial &material, osg::ImagePtr texture)
{
    auto result = osg::ChunkMaterial::create();
    const osg::CPEditor edit(result);
    osg::setName(result, material.GetName().C_Str());
    result->addChunk(buildMaterialChunk(material));
    if (texture != osg::NullFC)
        result->addChunk(buildTextureChunk(material, texture));
    if (isTransparent(material))
        result->addChunk(buildBlendChunk());
    result->addChunk(buildPolygonChunk(material));
    if (isTwoSided(material))
        result->addChunk(osg::TwoSidedLightingChunk::create());
    return result;
}

osg::ImagePtr kavoMaterialBuilder::buildImage(const QImage &source, const QString &path)
{
    const bool alpha = source.hasAlphaChannel();
    const QImage image
        = source.convertToFormat(alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    const int rowBytes = image.width() * (alpha ? 4 : 3);
    auto result = osg::Image::create();
    const osg::CPEditor edit(result);
    result->set(
        alpha ? osg::Image::OSG_RGBA_PF : osg::Image::OSG_RGB_PF, image.width(), image.height());
    for (int row = 0; row < image.height(); ++row) // rows of a QImage are padded
        std::copy_n(image.constScanLine(image.height() - 1 - row), rowBytes,
            result->getData() + row * rowBytes);
    result->setName(path.toUtf8().constData());
    return result;
}
