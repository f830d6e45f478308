#include "Import/kavoImportCheck.h"

#include <assimp/scene.h>

#include <QtTest>

#include <array>
#include <memory>
#include <stdexcept>

using Damage = void (*)(aiScene &);
Q_DECLARE_METATYPE(Damage)

namespace {

constexpr unsigned int vertexCount = 3;

aiMesh *makeTriangle()
{
    auto *mesh = new aiMesh;
    mesh->mNumVertices = vertexCount;
    mesh->mVertices = new aiVector3D[vertexCount];
    mesh->mNumFaces = 1;
    mesh->mFaces = new aiFace[1];
    mesh->mFaces[0].mNumIndices = vertexCount;
    mesh->mFaces[0].mIndices = new unsigned int[vertexCount] { 0, 1, 2 };
    return mesh;
}

void addBone(aiMesh &mesh)
{
    mesh.mNumBones = 1;
    mesh.mBones = new aiBone *[1] { new aiBone };
    mesh.mBones[0]->mNumWeights = 1;
    mesh.mBones[0]->mWeights = new aiVertexWeight[1] { { vertexCount - 1, 1.0f } };
}

void addShape(aiMesh &mesh)
{
    mesh.mNumAnimMeshes = 1;
    mesh.mAnimMeshes = new aiAnimMesh *[1] { new aiAnimMesh };
    mesh.mAnimMeshes[0]->mNumVertices = vertexCount;
}

// One triangle with a bone and a blend shape.
std::unique_ptr<aiScene> makeScene()
{
    auto scene = std::make_unique<aiScene>();
    scene->mNumMaterials = 1;
    scene->mMaterials = new aiMaterial *[1] { new aiMaterial };
    scene->mNumMeshes = 1;
    scene->mMeshes = new aiMesh *[1] { makeTriangle() };
    addBone(*scene->mMeshes[0]);
    addShape(*scene->mMeshes[0]);
    scene->mRootNode = new aiNode;
    scene->mRootNode->mNumMeshes = 1;
    scene->mRootNode->mMeshes = new unsigned int[1] { 0 };
    return scene;
}

template <class Value> void loseArray(Value *&values)
{
    delete[] values;
    values = nullptr;
}

// Adds nested nodes below the root, until there are as many levels.
void nest(aiScene &scene, int levels)
{
    for (aiNode *node = scene.mRootNode; --levels > 0; node = node->mChildren[0])
        node->addChildren(1, std::array { new aiNode }.data());
}

QString refusal(const aiScene &scene)
{
    try {
        kavoImportCheck::check(scene);
    } catch (const std::runtime_error &error) {
        return error.what();
    }
    return QString();
}

} // namespace

class tst_ImportCheck : public QObject
{
    Q_OBJECT

private slots:
    void aSoundSceneIsAccepted() { QCOMPARE(refusal(*makeScene()), QString()); }

    void whatIsNestedTooDeeplyIsRefused()
    {
        const std::unique_ptr<aiScene> deep = makeScene(), tooDeep = makeScene();
        nest(*deep, kavoImportCheck::maxLevels);
        nest(*tooDeep, kavoImportCheck::maxLevels + 1);
        QCOMPARE(refusal(*deep), QString());
        QCOMPARE(refusal(*tooDeep), QString("the nodes of the file are nested too deeply"));
    }

    void damageIsRefused_data()
    {
        QTest::addColumn<Damage>("damage");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no vertices")
            << Damage([](aiScene &scene) { loseArray(scene.mMeshes[0]->mVertices); })
            << "a mesh lacks its vertices";
        QTest::newRow("no faces") << Damage([](aiScene &scene) {
            loseArray(scene.mMeshes[0]->mFaces);
        }) << "a mesh lacks its faces";
        QTest::newRow("no corners")
            << Damage([](aiScene &scene) { loseArray(scene.mMeshes[0]->mFaces[0].mIndices); })
            << "a face lacks its vertices";
        QTest::newRow("bone") << Damage([](aiScene &scene) {
            scene.mMeshes[0]->mBones[0]->mWeights[0].mVertexId = vertexCount;
        }) << "a bone moves a vertex too many";
        QTest::newRow("shape") << Damage([](aiScene &scene) {
            scene.mMeshes[0]->mAnimMeshes[0]->mNumVertices = vertexCount + 1;
        }) << "a shape to blend has other vertices than its mesh";
    }

    void damageIsRefused()
    {
        QFETCH(Damage, damage);
        QFETCH(QString, reason);
        const std::unique_ptr<aiScene> scene = makeScene();
        damage(*scene);
        QCOMPARE(refusal(*scene), "the file is damaged: " + reason);
    }
};

QTEST_GUILESS_MAIN(tst_ImportCheck)
#include "tst_importcheck.moc"
