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

/// Builds the containers of one parsed file, in steps that are each done in a moment. GUI thread.
///
/// Every node of the file becomes a node of the same name. One that moves nothing carries its first
/// mesh itself, which saves a level; otherwise it is a Transform with a child for each mesh. A
/// light's node holds the light and, as a child, its beacon, which carries all that the node
/// carries in the file. The beacon of a camera is the node of the camera's name. Lights and cameras
/// whose node is missing get one.
class kavoGraphBuilder
{
public:
    /// \param root gets the file's root node as a child
    /// \param library gets a node with a MaterialGroup for each material of the file
    kavoGraphBuilder(std::shared_ptr<kavoParsedFile> file, const osg::NodePtr &root,
        const osg::NodePtr &library);

    int stepCount() const;
    int stepsDone() const { return m_stepsDone; }

    /// Does the next step; false if there is none.
    bool step();

    /// The cameras made so far, each with its beacon set.
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
    std::vector<osg::ChunkMaterialPtr> m_materials; // held by the library
    std::vector<osg::RefPtr<osg::GeometryPtr>> m_geometries;
    std::vector<osg::RefPtr<osg::CameraPtr>> m_cameras;
    std::vector<Pending> m_pendingNodes;
    int m_nodeCount = 0;
    int m_stepsDone = 0;
};
