#pragma once

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <QHash>
#include <QMap>
#include <memory>
#include <vector>

struct aiCamera;
struct aiLight;
struct aiNode;
struct kavoParsedFile;

/// Builds the scene graph of one parsed file, in short steps. GUI thread.
///
/// Each node of the file becomes a node with the same name. A node with the identity as its matrix
/// gets its first mesh as core. Any other node gets a Transform as core and a child for each mesh.
/// The node of a light has the light as core and the light's beacon as a child. The meshes and
/// children of that node are below the beacon. The beacon of a camera is the node with the camera's
/// name. A light or camera without a node in the file gets a new node.
class kavoGraphBuilder
{
public:
    /// \param root receives the file's root node as a child
    /// \param library receives a child with a MaterialGroup for each material
    kavoGraphBuilder(std::shared_ptr<kavoParsedFile> file, const osg::NodePtr &root,
        const osg::NodePtr &library);

    int stepCount() const;
    int stepsDone() const { return m_stepsDone; }

    /// Does the next step. Returns false if there is none.
    bool step();

    /// The cameras built so far, each with its beacon set.
    const std::vector<osg::RefPtr<osg::CameraPtr>> &cameras() const { return m_cameras; }

private:
    struct Pending
    {
        const aiNode *source;
        osg::NodePtr parent;
    };

    void index();
    bool buildNextMaterial();
    bool buildNextMesh();
    bool buildNextNode();
    bool buildNextStray();
    osg::ImagePtr image(const QString &path);
    void buildNode(const aiNode &source, const osg::NodePtr &parent);
    osg::NodePtr buildPlace(const aiNode &source, const osg::NodePtr &parent);
    osg::NodePtr buildLight(const aiLight &light, const aiNode &source, const osg::NodePtr &parent);
    void buildCamera(const aiCamera &camera, const osg::NodePtr &place);
    void addMeshes(const aiNode &source, const osg::NodePtr &place, unsigned int first);

    std::shared_ptr<kavoParsedFile> m_file;
    osg::NodePtr m_root, m_library;
    QMap<QByteArray, const aiLight *> m_lightsByName;
    QMap<QByteArray, const aiCamera *> m_camerasByName;
    QHash<QString, osg::RefPtr<osg::ImagePtr>> m_images;
    std::vector<osg::ChunkMaterialPtr> m_materials; // referenced by the library
    std::vector<osg::RefPtr<osg::GeometryPtr>> m_geometries;
    std::vector<osg::RefPtr<osg::CameraPtr>> m_cameras;
    std::vector<Pending> m_pendingNodes;
    int m_nodeCount = 0;
    int m_stepsDone = 0;
};
