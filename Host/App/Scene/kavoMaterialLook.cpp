#include "Scene/kavoMaterialLook.h"

#include "Scene/kavoContainers.h"

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <qopengl.h>

namespace {

template <class Color> QVector3D toVector(const Color &color)
{
    return QVector3D(color.red(), color.green(), color.blue());
}

template <class Source> void readColors(kavoMaterialLook &look, const Source &source)
{
    look.diffuse = toVector(source->getDiffuse());
    look.ambient = toVector(source->getAmbient());
    look.specular = toVector(source->getSpecular());
    look.emission = toVector(source->getEmission());
    look.shininess = source->getShininess();
    look.lit = source->getLit();
}

} // namespace

kavoMaterialLook kavoMaterialLook::of(const osg::MaterialPtr &material)
{
    kavoMaterialLook look;
    look.read(material);
    const auto chunks = osg::ChunkMaterialPtr::dcast(material);
    for (osg::UInt32 i = 0; chunks != osg::NullFC && i < chunks->getMFChunks()->getSize(); ++i)
        look.read(chunks->getChunks(i));
    if (look.texture != osg::NullFC)
        look.sources.append(kavoContainers::id(look.texture));
    return look;
}

void kavoMaterialLook::read(const osg::FieldContainerPtr &container)
{
    if (container == osg::NullFC)
        return;
    sources.append(kavoContainers::id(container));
    if (const auto chunk = osg::MaterialChunkPtr::dcast(container); chunk != osg::NullFC) {
        readColors(*this, chunk);
        opacity = chunk->getDiffuse().alpha();
    } else if (const auto simple = osg::SimpleMaterialPtr::dcast(container);
               simple != osg::NullFC) {
        readColors(*this, simple);
        opacity = 1 - simple->getTransparency();
    }
    if (const auto chunk = osg::TextureChunkPtr::dcast(container); chunk != osg::NullFC)
        texture = chunk->getImage();
    else if (const auto simple = osg::SimpleTexturedMaterialPtr::dcast(container);
             simple != osg::NullFC)
        texture = simple->getImage();
    else if (const auto chunk = osg::PolygonChunkPtr::dcast(container); chunk != osg::NullFC)
        cullsBack = chunk->getCullFace() == GL_BACK || chunk->getCullFace() == GL_FRONT_AND_BACK;
}
