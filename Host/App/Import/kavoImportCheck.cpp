#include "Import/kavoImportCheck.h"

#include <assimp/scene.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

void require(bool isSound, const char *what)
{
    if (!isSound)
        throw std::runtime_error(std::string("the file is damaged: ") + what);
}

void checkFaces(const aiMesh &mesh)
{
    require(mesh.mNumFaces == 0 || mesh.mFaces, "a mesh lacks its faces");
    for (unsigned int i = 0; i < mesh.mNumFaces; ++i) {
        const aiFace &face = mesh.mFaces[i];
        require(face.mNumIndices == 0 || face.mIndices, "a face lacks its vertices");
        for (unsigned int corner = 0; corner < face.mNumIndices; ++corner)
            require(face.mIndices[corner] < mesh.mNumVertices, "a face has a vertex too many");
    }
}

void checkBones(const aiMesh &mesh)
{
    for (unsigned int i = 0; i < mesh.mNumBones; ++i) {
        const aiBone &bone = *mesh.mBones[i];
        for (unsigned int weight = 0; weight < bone.mNumWeights; ++weight)
            require(bone.mWeights[weight].mVertexId < mesh.mNumVertices,
                "a bone moves a vertex too many");
    }
}

void checkMesh(const aiMesh &mesh, const aiScene &scene)
{
    require(mesh.mMaterialIndex < scene.mNumMaterials, "a mesh has a material that is not there");
    require(mesh.mNumVertices == 0 || mesh.mVertices, "a mesh lacks its vertices");
    checkFaces(mesh);
    checkBones(mesh);
    for (unsigned int i = 0; i < mesh.mNumAnimMeshes; ++i)
        require(mesh.mAnimMeshes[i]->mNumVertices == mesh.mNumVertices,
            "a shape to blend has other vertices than its mesh");
}

void checkNodes(const aiScene &scene)
{
    std::vector<std::pair<const aiNode *, int>> open { { scene.mRootNode, 1 } };
    while (!open.empty()) {
        const auto [node, level] = open.back();
        open.pop_back();
        if (!node)
            continue;
        if (level > kavoImportCheck::maxLevels)
            throw std::runtime_error("the nodes of the file are nested too deeply");
        for (unsigned int i = 0; i < node->mNumMeshes; ++i)
            require(node->mMeshes[i] < scene.mNumMeshes, "a node has a mesh that is not there");
        for (unsigned int i = 0; i < node->mNumChildren; ++i)
            open.emplace_back(node->mChildren[i], level + 1);
    }
}

} // namespace

void kavoImportCheck::check(const aiScene &scene)
{
    for (unsigned int i = 0; i < scene.mNumMeshes; ++i)
        checkMesh(*scene.mMeshes[i], scene);
    checkNodes(scene);
}
