#pragma once

#include <OpenSG/OSGChunkMaterialBase.h>

OSG_BEGIN_NAMESPACE

/// A material put together from state chunks, to each of which it holds a reference. The list of
/// slots is only as long as it must be to hold the slots that were given.
class ChunkMaterial : public ChunkMaterialBase
{
    typedef ChunkMaterialBase Inherited;

public:
    /// Appends the chunk; announces no edit. Deliberate: null is
    /// refused with false, so that whoever walks over the chunks need not expect it.
    bool addChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    /// Deliberate: true, and a warning, if the chunk was NOT found; false if it was removed.
    bool subChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    /// Index of the chunk; -1 if it is not in the list.
    Int32 find(StateChunkPtr chunk) const;
    /// The chunk of exactly this type in the slot; null if there is none.
    StateChunkPtr find(const FieldContainerType &type, Int32 slot = State::AutoSlotReplace) const;
    void clearChunks();

protected:
    friend class FieldContainer;

    ChunkMaterial() = default;
    ChunkMaterial(const ChunkMaterial &) = default;
    ~ChunkMaterial() override = default;

    void fillState(State &state) override;
    bool hasTransparentPart() const override;

private:
    Int32 slotOf(UInt32 index) const;
};

OSG_END_NAMESPACE
