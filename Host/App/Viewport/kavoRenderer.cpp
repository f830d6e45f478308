#include "Viewport/kavoRenderer.h"

#include "Scene/kavoChanges.h"
#include "Scene/kavoContainers.h"
#include "Scene/kavoImageConverter.h"

#include <QColor>
#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace {

const char vertexShader[] = R"(#version 120
attribute vec3 position;
attribute vec3 normal;
attribute vec2 texCoord;
uniform mat4 toClip;
uniform mat4 toWorld;
uniform mat3 normalToWorld;
varying vec3 worldPosition;
varying vec3 worldNormal;
varying vec2 uv;

void main()
{
    worldPosition = (toWorld * vec4(position, 1.0)).xyz;
    worldNormal = normalToWorld * normal;
    uv = texCoord;
    gl_Position = toClip * vec4(position, 1.0);
})";

const char fragmentShader[] = R"(#version 120
uniform vec3 diffuse, ambient, specular, emission, eye;
uniform float shininess, opacity;
uniform bool lit, textured;
uniform sampler2D image;
uniform int lightCount;
uniform vec4 lightPosition[4];
uniform vec3 lightColor[4];
varying vec3 worldPosition;
varying vec3 worldNormal;
varying vec2 uv;

void main()
{
    vec4 texel = textured ? texture2D(image, uv) : vec4(1.0);
    vec3 base = diffuse * texel.rgb;
    vec3 color = lit ? emission + (0.3 * ambient + 0.12 * diffuse) * texel.rgb : base;
    vec3 toEye = normalize(eye - worldPosition);
    vec3 n = normalize(worldNormal);
    n = dot(n, toEye) < 0.0 ? -n : n;
    for (int i = 0; lit && i < lightCount; ++i) {
        vec3 toLight = normalize(lightPosition[i].xyz - worldPosition * lightPosition[i].w);
        float gloss = pow(max(dot(n, normalize(toLight + toEye)), 0.0), max(shininess, 1.0));
        color += lightColor[i] * (base * max(dot(n, toLight), 0.0) + specular * gloss);
    }
    gl_FragColor = vec4(color, opacity * texel.a);
})";

constexpr float outlinePixels = 4;

using Vertex = kavoTriangleSoup::Vertex;

/// Locations of the attributes, in the order of the rows below.
const struct
{
    const char *name;
    std::size_t offset;
    int size;
} attributes[] = {
    { "position", offsetof(Vertex, position), 3 },
    { "normal", offsetof(Vertex, normal), 3 },
    { "texCoord", offsetof(Vertex, texCoord), 2 },
};

// In the order of kavoRenderer::Uniform.
const char *const uniforms[] = { "toClip", "toWorld", "normalToWorld", "image", "eye", "diffuse",
    "ambient", "specular", "emission", "shininess", "opacity", "lit", "textured", "lightCount",
    "lightPosition", "lightColor" };

void build(QOpenGLShaderProgram &program)
{
    program.addShaderFromSourceCode(QOpenGLShader::Vertex, vertexShader);
    program.addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentShader);
    for (int i = 0; i < int(std::size(attributes)); ++i)
        program.bindAttributeLocation(attributes[i].name, i);
    if (!program.link())
        throw std::runtime_error(program.log().toStdString());
}

std::vector<Vertex> allCorners(const kavoTriangleSoup &soup)
{
    std::vector<Vertex> corners = soup.triangles;
    corners.insert(corners.end(), soup.lines.begin(), soup.lines.end());
    corners.insert(corners.end(), soup.points.begin(), soup.points.end());
    return corners;
}

} // namespace

kavoRenderer::kavoRenderer(kavoGeometryCache &geometry)
    : m_geometry(geometry)
{
    if (!m_gl.initializeOpenGLFunctions())
        throw std::runtime_error("OpenGL 2.1 is missing");
    build(m_program);
    static_assert(std::size(uniforms) == UniformCount);
    std::transform(std::begin(uniforms), std::end(uniforms), m_uniforms,
        [this](const char *name) { return m_program.uniformLocation(name); });
}

void kavoRenderer::invalidate(const kavoChanges &changes)
{
    m_looks.clear(); // cheap to read again
    for (const QSet<osg::UInt32> *ids : { &changes.touched, &changes.destroyed }) {
        for (const osg::UInt32 id : *ids) {
            m_meshes.erase(id);
            m_textures.erase(id);
        }
    }
}

void kavoRenderer::invalidate()
{
    m_looks.clear();
    m_meshes.clear();
    m_textures.clear();
}

void kavoRenderer::draw(const View &view)
{
    beginFrame(view);
    drawItems(false);
    m_gl.glEnable(GL_BLEND);
    m_gl.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    m_gl.glDepthMask(GL_FALSE);
    drawItems(true);
    m_gl.glDepthMask(GL_TRUE);
    m_gl.glDisable(GL_BLEND);
    if (view.selected != 0)
        drawOutline(view);
    m_program.release();
}

void kavoRenderer::beginFrame(const View &view)
{
    m_viewProjection = view.projection * view.view;
    m_gl.glClearColor(float(view.background.redF()), float(view.background.greenF()),
        float(view.background.blueF()), 1);
    m_gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    m_gl.glEnable(GL_DEPTH_TEST);
    m_gl.glPointSize(3);
    m_program.bind();
    m_program.setUniformValue(m_uniforms[Image], 0);
    m_program.setUniformValue(m_uniforms[Eye], view.eye);
    setLights(view);
}

void kavoRenderer::setLights(const View &view)
{
    QVector4D positions[kavoRenderLights::maximum];
    QVector3D colors[kavoRenderLights::maximum];
    for (std::size_t i = 0; i < view.lights.size(); ++i) {
        positions[i] = view.lights[i].position;
        colors[i] = view.lights[i].color;
    }
    m_program.setUniformValueArray(m_uniforms[LightPosition], positions, kavoRenderLights::maximum);
    m_program.setUniformValueArray(m_uniforms[LightColor], colors, kavoRenderLights::maximum);
    m_program.setUniformValue(m_uniforms[LightCount], int(view.lights.size()));
}

void kavoRenderer::drawItems(bool transparent)
{
    for (const kavoRenderItem &item : m_geometry.items()) {
        const kavoMaterialLook &material = look(item.material);
        if ((material.opacity < 1) == transparent)
            drawItem(item, material);
    }
}

void kavoRenderer::drawItem(const kavoRenderItem &item, const kavoMaterialLook &material)
{
    setLook(material);
    if (material.cullsBack && item.toWorld.determinant() > 0)
        m_gl.glEnable(GL_CULL_FACE);
    drawMesh(item);
    m_gl.glDisable(GL_CULL_FACE);
}

void kavoRenderer::setLook(const kavoMaterialLook &look)
{
    QOpenGLTexture *image = texture(look.texture);
    if (image)
        image->bind(0);
    m_program.setUniformValue(m_uniforms[Textured], image != nullptr);
    m_program.setUniformValue(m_uniforms[Diffuse], look.diffuse);
    m_program.setUniformValue(m_uniforms[Ambient], look.ambient);
    m_program.setUniformValue(m_uniforms[Specular], look.specular);
    m_program.setUniformValue(m_uniforms[Emission], look.emission);
    m_program.setUniformValue(m_uniforms[Shininess], look.shininess);
    m_program.setUniformValue(m_uniforms[Opacity], look.opacity);
    m_program.setUniformValue(m_uniforms[Lit], look.lit);
}

void kavoRenderer::drawMesh(const kavoRenderItem &item)
{
    Mesh &drawn = mesh(item.geometry);
    m_program.setUniformValue(m_uniforms[ToClip], m_viewProjection * item.toWorld);
    m_program.setUniformValue(m_uniforms[ToWorld], item.toWorld);
    m_program.setUniformValue(m_uniforms[NormalToWorld], item.toWorld.normalMatrix());
    drawn.buffer.bind();
    for (int i = 0; i < int(std::size(attributes)); ++i) {
        m_program.enableAttributeArray(i);
        m_program.setAttributeBuffer(
            i, GL_FLOAT, int(attributes[i].offset), attributes[i].size, sizeof(Vertex));
    }
    m_gl.glDrawArrays(GL_TRIANGLES, 0, drawn.triangles);
    m_gl.glDrawArrays(GL_LINES, drawn.triangles, drawn.lines);
    m_gl.glDrawArrays(GL_POINTS, drawn.triangles + drawn.lines, drawn.points);
    drawn.buffer.release();
}

/// Marks the pixels of the selected geometries in the stencil buffer, then draws thick edges
/// outside the mark.
void kavoRenderer::drawOutline(const View &view)
{
    kavoMaterialLook flat;
    flat.lit = false;
    flat.diffuse = QVector3D(
        float(view.outline.redF()), float(view.outline.greenF()), float(view.outline.blueF()));
    setLook(flat);
    m_gl.glDisable(GL_DEPTH_TEST);
    m_gl.glEnable(GL_STENCIL_TEST);
    m_gl.glStencilFunc(GL_ALWAYS, 1, 1);
    m_gl.glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    m_gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    drawSelected(view.selected);
    m_gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    m_gl.glStencilFunc(GL_NOTEQUAL, 1, 1);
    m_gl.glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    m_gl.glLineWidth(outlinePixels);
    drawSelected(view.selected);
    m_gl.glLineWidth(1);
    m_gl.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    m_gl.glDisable(GL_STENCIL_TEST);
    m_gl.glEnable(GL_DEPTH_TEST);
}

void kavoRenderer::drawSelected(osg::UInt32 selected)
{
    const osg::NodePtr top = kavoContainers::node(selected);
    for (const kavoRenderItem &item : m_geometry.items()) {
        if (top != osg::NullFC && kavoContainers::isWithin(kavoContainers::node(item.node), top))
            drawMesh(item);
    }
}

kavoRenderer::Mesh &kavoRenderer::mesh(osg::UInt32 geometry)
{
    Mesh &mesh = m_meshes[geometry];
    if (mesh.buffer.isCreated())
        return mesh;
    const kavoTriangleSoup &soup = m_geometry.soup(geometry);
    const std::vector<Vertex> corners = allCorners(soup);
    mesh.buffer.create();
    mesh.buffer.bind();
    mesh.buffer.allocate(corners.data(), int(corners.size() * sizeof(Vertex)));
    mesh.buffer.release();
    mesh.triangles = int(soup.triangles.size());
    mesh.lines = int(soup.lines.size());
    mesh.points = int(soup.points.size());
    return mesh;
}

const kavoMaterialLook &kavoRenderer::look(osg::UInt32 material)
{
    const auto found = m_looks.find(material);
    if (found != m_looks.end())
        return found->second;
    const auto container = osg::MaterialPtr::dcast(kavoContainers::find(material));
    return m_looks.emplace(material, kavoMaterialLook::of(container)).first->second;
}

QOpenGLTexture *kavoRenderer::texture(const osg::ImagePtr &image)
{
    if (image == osg::NullFC)
        return nullptr;
    const auto [entry, isNew] = m_textures.try_emplace(kavoContainers::id(image));
    auto &texture = entry->second; // null if the image cannot be converted
    const QImage pixels = isNew ? kavoImageConverter::toImage(image) : QImage();
    if (!pixels.isNull()) { // OpenGL, too, takes the bottom row first
        texture = std::make_unique<QOpenGLTexture>(pixels.mirrored());
        texture->setMinMagFilters(QOpenGLTexture::LinearMipMapLinear, QOpenGLTexture::Linear);
        texture->setWrapMode(QOpenGLTexture::Repeat);
    }
    return texture.get();
}
