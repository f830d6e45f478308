#pragma once

#include "Scene/kavoMaterialLook.h"
#include "Viewport/kavoGeometryCache.h"
#include "Viewport/kavoRenderLights.h"

#include <QOpenGLBuffer>
#include <QOpenGLFunctions_2_1>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <map>
#include <memory>

/// Draws the open scene with OpenGL 2.1. The OpenGL context must be current in every call, in the
/// constructor and in the destructor.
class kavoRenderer
{
public:
    /// \throws std::runtime_error if the context is too old
    explicit kavoRenderer(kavoGeometryCache &geometry);

    struct View
    {
        QMatrix4x4 view, projection;
        QVector3D eye;
        std::vector<kavoRenderLight> lights;
        osg::UInt32 selected; ///< id of the node to outline with its subtree, 0 for none
        QColor background, outline;
    };

    void draw(const View &view);

    /// Drops the OpenGL objects of containers that changed.
    void invalidate(const kavoChanges &changes);
    /// Drops all OpenGL objects of the scene.
    void invalidate();

private:
    enum Uniform {
        ToClip,
        ToWorld,
        NormalToWorld,
        Image,
        Eye,
        Diffuse,
        Ambient,
        Specular,
        Emission,
        Shininess,
        Opacity,
        Lit,
        Textured,
        LightCount,
        LightPosition,
        LightColor,
        UniformCount
    };

    struct Mesh
    {
        QOpenGLBuffer buffer { QOpenGLBuffer::VertexBuffer };
        int triangles = 0, lines = 0, points = 0; // numbers of vertices, in the order of the buffer
    };

    void beginFrame(const View &view);
    void drawItems(bool transparent);
    void drawItem(const kavoRenderItem &item, const kavoMaterialLook &look);
    void drawMesh(const kavoRenderItem &item);
    void drawOutline(const View &view);
    void drawSelected(osg::UInt32 selected);
    void setLook(const kavoMaterialLook &look);
    void setLights(const View &view);
    Mesh &mesh(osg::UInt32 geometry);
    const kavoMaterialLook &look(osg::UInt32 material);
    QOpenGLTexture *texture(const osg::ImagePtr &image);

    kavoGeometryCache &m_geometry;
    QOpenGLFunctions_2_1 m_gl;
    QOpenGLShaderProgram m_program;
    int m_uniforms[UniformCount]; // locations in the program
    QMatrix4x4 m_viewProjection;
    std::map<osg::UInt32, Mesh> m_meshes; // by geometry
    std::map<osg::UInt32, kavoMaterialLook> m_looks; // by material
    std::map<osg::UInt32, std::unique_ptr<QOpenGLTexture>> m_textures; // by image
};
