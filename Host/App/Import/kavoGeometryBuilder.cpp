#include "Import/kavoGeometryBuilder.h"

#include "Import/kavoAssimpTypes.h"

#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <algorithm>
#include <assimp/mesh.h>
#include <qopengl.h>

namespace {

// Indexed by the number of corners of a face, minus one. Assimp triangulates larger faces.
constexpr osg::UInt8 primitiveTypes[] = { GL_POINTS, GL_LINES, GL_TRIANGLES };

/// Creates a property and fills it with the converted sources.
template <class Property, class Source, class Convert>
typename Property::PtrType property(const Source *sources, unsigned int count, Convert convert)
{
    auto result = Property::create();
    const osg::CPEditor edit(result);
    auto &values = result->getField();
    values.resize(count);
    std::transform(sources, sources + count, values.begin(), convert);
    return result;
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
    geometry.setPositions(
        property<osg::GeoPositions3f>(mesh.mVertices, mesh.mNumVertices, kavoAssimpTypes::toPoint));
    if (mesh.HasNormals())
        geometry.setNormals(property<osg::GeoNormals3f>(
            mesh.mNormals, mesh.mNumVertices, kavoAssimpTypes::toVector));
    if (mesh.HasVertexColors(0))
        geometry.setColors(property<osg::GeoColors4f>(mesh.mColors[0], mesh.mNumVertices,
            [](const aiColor4D &c) { return kavoAssimpTypes::toColor(c); }));
    setTexCoords(geometry, mesh);
}

} // namespace

osg::GeometryPtr kavoGeometryBuilder::build(const aiMesh &mesh)
{
    auto geometry = osg::Geometry::create();
    const osg::CPEditor edit(geometry);
    setPrimitives(*geometry, mesh);
    setVertices(*geometry, mesh);
    return geometry;
}
