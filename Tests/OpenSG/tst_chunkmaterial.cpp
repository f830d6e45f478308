#include "LogCapture.h"
#include "NotInStock.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTwoSidedLightingChunk.h>

#include <QtTest>

#include <algorithm>

using namespace osg;

/// The chunks of a material, and the state that it makes of them.
class tst_ChunkMaterial : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osgInit(0, nullptr); }

    void aChunkIsReferencedButHasNoParent();
    void slotsAreFilledUpToTheOneThatIsGiven();
    void removingAChunkSaysFalse();
    void removingAStrangerWarnsAndSaysTrue();
    void chunksAreFoundByExactType();
    void nullChunksAreRefused();
    void nullChunksInTheFieldAreSkipped();
    void clearingReleasesTheChunks();
    void chunksThatCameWithoutSetterAreHeldOnce();
    void aCopySharesTheChunks();
    void anEditMakesAState();
    void theStateFollowsTheMaterial();
    void manyChunksAreFoundInTheirSlots();
    void allAtOnceTakeTheSameSlotsAsOneAfterTheOther();
    void aChunkWhoseSlotIsTakenIsNotHeldByTheState();
    void makeStateLeavesTheStateToTheCaller();
};

namespace {

std::size_t containerCount()
{
    return FieldContainerFactory::the()->getFieldContainerStore()->size();
}

QVector<Int32> listOf(const MFInt32 &field)
{
    return QVector<Int32>(field.begin(), field.end());
}

} // namespace

void tst_ChunkMaterial::aChunkIsReferencedButHasNoParent()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const MaterialChunkPtr chunk = MaterialChunk::create();
    QVERIFY(material->addChunk(chunk));
    QCOMPARE(chunk.getRefCount(), 1);
    QVERIFY(chunk->getParents().empty());
    QVERIFY(material->getSlots().empty());
}

void tst_ChunkMaterial::slotsAreFilledUpToTheOneThatIsGiven()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    material->addChunk(TextureChunk::create());
    material->addChunk(TextureChunk::create(), 2);
    QCOMPARE(listOf(material->getSlots()), (QVector<Int32> { -2, 2 }));
}

void tst_ChunkMaterial::removingAChunkSaysFalse()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const MaterialChunkRefPtr chunk(MaterialChunk::create());
    material->addChunk(chunk.get());
    QVERIFY(!material->subChunk(chunk.get()));
    QCOMPARE(chunk.get().getRefCount(), 1);
    QCOMPARE(material->find(chunk.get()), -1);
}

void tst_ChunkMaterial::removingAStrangerWarnsAndSaysTrue()
{
    const LogCapture log;
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const MaterialChunkRefPtr chunk(MaterialChunk::create());
    QVERIFY(material->subChunk(chunk.get()));
    material->addChunk(chunk.get(), 3);
    QVERIFY(material->subChunk(chunk.get()));
    QVERIFY(!material->subChunk(chunk.get(), 3));
    QCOMPARE(log.text.count("WARNING:  "), 2);
}

void tst_ChunkMaterial::chunksAreFoundByExactType()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const TextureChunkPtr texture = TextureChunk::create();
    material->addChunk(MaterialChunk::create());
    material->addChunk(texture, 1);
    QVERIFY(material->find(TextureChunk::getClassType(), 1) == texture);
    QVERIFY(material->find(TextureChunk::getClassType()) == NullFC);
    QVERIFY(material->find(StateChunk::getClassType()) == NullFC);
    QCOMPARE(material->find(texture), 1);
}

void tst_ChunkMaterial::nullChunksAreRefused()
{
    NOT_IN_STOCK("stock 1.8 takes them");
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    QVERIFY(!material->addChunk(NullFC));
    QVERIFY(material->getChunks().empty());
}

void tst_ChunkMaterial::nullChunksInTheFieldAreSkipped()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    material->getChunks().push_back(NullFC);
    material->addChunk(BlendChunk::create());
    endEditCP(material.get());
    QCOMPARE(material->getState()->getChunks().size(), 1u);
    QVERIFY(!material->isTransparent());
}

void tst_ChunkMaterial::clearingReleasesTheChunks()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const MaterialChunkRefPtr chunk(MaterialChunk::create());
    material->addChunk(chunk.get(), 1);
    material->clearChunks();
    QCOMPARE(chunk.get().getRefCount(), 1);
    QVERIFY(material->getSlots().empty());
}

void tst_ChunkMaterial::chunksThatCameWithoutSetterAreHeldOnce()
{
    NOT_IN_STOCK("stock 1.8 counts each chunk at every edit");
    ChunkMaterialPtr material = ChunkMaterial::create();
    addRefCP(material);
    const MaterialChunkRefPtr chunk(MaterialChunk::create());
    material->getChunks().push_back(chunk.get());
    changedCP(material, ChunkMaterial::ChunksFieldMask, ChangedOrigin::Abstract);
    changedCP(material, ChunkMaterial::ChunksFieldMask, ChangedOrigin::Abstract);
    material->getState();
    QCOMPARE(chunk.get().getRefCount(), 3);
    clearRefCP(material);
    QCOMPARE(chunk.get().getRefCount(), 1);
}

void tst_ChunkMaterial::aCopySharesTheChunks()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const MaterialChunkPtr chunk = MaterialChunk::create();
    material->addChunk(chunk);
    {
        const ChunkMaterialRefPtr copy(ChunkMaterialPtr::dcast(material->shallowCopy()));
        QCOMPARE(chunk.getRefCount(), 2);
    }
    QCOMPARE(chunk.getRefCount(), 1);
}

void tst_ChunkMaterial::anEditMakesAState()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const std::size_t before = containerCount();
    endEditCP(material.get());
    QCOMPARE(containerCount(), before + 1);
    endEditCP(material.get());
    QCOMPARE(containerCount(), before + 1);
    QCOMPARE(material->getState()->getTypeName(), "State");
}

void tst_ChunkMaterial::theStateFollowsTheMaterial()
{
    const RefPtr<SimpleMaterialPtr> material(SimpleMaterial::create());
    material->setDiffuse(Color3f(1.f, 0.5f, 0.f));
    material->setTransparency(0.25f);
    endEditCP(material.get());
    const auto chunk
        = MaterialChunkPtr::dcast(material->getState()->getChunk(MaterialChunk::getClassType()));
    QCOMPARE(chunk->getDiffuse(), Color4f(1.f, 0.5f, 0.f, 0.75f));
    QVERIFY(material->getState()->getChunk(BlendChunk::getClassType()) != NullFC);
}

void tst_ChunkMaterial::manyChunksAreFoundInTheirSlots()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    for (Int32 slot = 0; slot < 2000; ++slot) {
        material->getChunks().push_back(BlendChunk::create());
        material->getChunks().push_back(TextureChunk::create());
        material->getSlots().push_back(slot);
        material->getSlots().push_back(slot);
    }
    endEditCP(material.get());
    const StatePtr state = material->getState();
    QCOMPARE(state->getChunks().size(), 4000u);
    for (UInt32 slot = 0; slot < 2000; slot += 37) {
        QVERIFY(state->getChunk(BlendChunk::getClassType(), slot) == material->getChunks(2 * slot));
        QVERIFY(state->getChunk(TextureChunk::getClassType(), slot)
            == material->getChunks(2 * slot + 1));
    }
}

// Slots that are free, taken or beyond the next free one, and both automatic ones.
void tst_ChunkMaterial::allAtOnceTakeTheSameSlotsAsOneAfterTheOther()
{
    const RefPtr<SimpleMaterialPtr> material(SimpleMaterial::create());
    endEditCP(material.get());
    const RefPtr<StatePtr> expected(material->makeState());
    for (Int32 i = 0; i < 3000; ++i) {
        material->getChunks().push_back(
            i % 3 ? StateChunkPtr(BlendChunk::create()) : StateChunkPtr(MaterialChunk::create()));
        material->getSlots().push_back(i * 7919 % 500 - 2);
    }
    endEditCP(material.get());
    for (UInt32 i = 0; i < 3000; ++i) {
        expected.get()->addChunk(material->getChunks(i), material->getSlots(i));
    }
    const MFStateChunkPtr &taken = material->getState()->getChunks();
    const MFStateChunkPtr &oneByOne = expected.get()->getChunks();
    QVERIFY(taken.size() > 100u && taken.size() < 3000u);
    QVERIFY(std::equal(taken.begin(), taken.end(), oneByOne.begin(), oneByOne.end()));
}

void tst_ChunkMaterial::aChunkWhoseSlotIsTakenIsNotHeldByTheState()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    const BlendChunkPtr first = BlendChunk::create();
    const BlendChunkPtr second = BlendChunk::create();
    material->addChunk(first);
    material->addChunk(second);
    const StatePtr state = material->getState();
    QCOMPARE(first.getRefCount(), 1);
    QCOMPARE(second.getRefCount(), 2);
    QVERIFY(state->getChunk(BlendChunk::getClassType()) == second);
}

void tst_ChunkMaterial::makeStateLeavesTheStateToTheCaller()
{
    const ChunkMaterialRefPtr material(ChunkMaterial::create());
    material->addChunk(MaterialChunk::create());
    const StatePtr state = material->makeState();
    QCOMPARE(state.getRefCount(), 0);
    QCOMPARE(state->getChunks().size(), 1u);
    subRefCP(state);
}

QTEST_APPLESS_MAIN(tst_ChunkMaterial)
#include "tst_chunkmaterial.moc"
