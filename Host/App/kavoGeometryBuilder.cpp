#include "kavoGeometryBuilder.h"

#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <algorithm>
#include <assimp/mesh.h>

namespace {

// GL_POINTS, GL_LINES and GL_TRIANGLES; larger faces are triangulated on import.
constexpr osg::UInt8 primitiveTypes[] = { 0, 1, 4 };

/// A new property with one element for each of `count` sources.
template <class Property, class Source, class Convert>
typename Property::PtrType property(const Source *sources, unsigned int count, Convert convert)
{
    auto result = Property::create();
    osg::beginEditCP(result);
    auto &values = result->getField();
    values.resize(count);
    std::transform(sources, sources + count, values.begin(), convert);
    osg::endEditCP(result);
    return result;
}

osg::Vec3f toVector(const aiVector3D &v)
{
    return osg::Vec3f(v.x, v.y, v.z);
}

osg::Color4f toColor(const aiColor4D &c)
{
    osg::Color4f color;
    color.setValuesRGBA(c.r, c.g, c.b, c.a);
    return color;
}

void setPrimitives(osg::Geometry &geometry, const aiMesh &mesh)
{
    const unsigned int corners = mesh.mNumFaces ? mesh.mFaces[0].mNumIndices : 0;
    if (corners < 1 || corners > 3)
        return;
    auto types = osg::GeoPTypesUI8::create();
    auto lengths = osg::GeoPLengthsUI32::create();
    auto indices = osg::GeoIndicesUI32::create();
    types->push_back(primitiveTypes[corners - 1]);
    lengths->push_back(mesh.mNumFaces * corners);
    auto &values = indices->getField();
    values.reserve(mesh.mNumFaces * corners);
    for (const aiFace *face = mesh.mFaces; face != mesh.mFaces + mesh.mNumFaces; ++face)
        std::for_each(face->mIndices, face->mIndices + face->mNumIndices,
            [&values](unsigned int index) { values.push_back(index); });
    geometry.setTypes(types);
    geometry.setLengths(lengths);
    geometry.setIndices(indices);
}

void setTexCoords(osg::Geometry &geometry, const aiMesh &mesh)
{
    using Setter = void (osg::Geometry::*)(const osg::GeoTexCoordsPtr &);
    constexpr Setter setters[] = { &osg::Geometry::setTexCoords, &osg::Geometry::setTexCoords1,
        &osg::Geometry::setTexCoords2, &osg::Geometry::setTexCoords3, &osg::Geometry::setTexCoords4,
        &osg::Geometry::setTexCoords5, &osg::Geometry::setTexCoords6,
        &osg::Geometry::setTexCoords7 };
    for (unsigned int set = 0; set < std::size(setters) && mesh.HasTextureCoords(set); ++set) {
        const Setter setter = setters[set];
        (geometry.*setter)(property<osg::GeoTexCoords2f>(mesh.mTextureCoords[set],
            mesh.mNumVertices, [](const aiVector3D &v) { return osg::Vec2f(v.x, v.y); }));
    }
}

void setVertices(osg::Geometry &geometry, const aiMesh &mesh)
{
    geometry.setPositions(property<osg::GeoPositions3f>(mesh.mVertices, mesh.mNumVertices,
        [](const aiVector3D &v) { return osg::Pnt3f(v.x, v.y, v.z); }));
    if (mesh.HasNormals())
        geometry.setNormals(
            property<osg::GeoNormals3f>(mesh.mNormals, mesh.mNumVertices, toVector));
    if (mesh.HasVertexColors(0))
        geometry.setColors(property<osg::GeoColors4f>(mesh.mColors[0], mesh.mNumVertices, toColor));
    setTexCoords(geometry, mesh);
}

} // namespace

osg::GeometryPtr kavoGeometryBuilder::build(const aiMesh &mesh)
{
    auto geometry = osg::Geometry::create();
    osg::beginEditCP(geometry);
    setPrimitives(*geometry, mesh);
    setVertices(*geometry, mesh);
    osg::endEditCP(geometry);
    return geometry;
}
