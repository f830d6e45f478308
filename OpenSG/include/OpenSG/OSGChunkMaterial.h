#pragma once

#include <OpenSG/OSGChunkMaterialBase.h>

OSG_BEGIN_NAMESPACE

/// A material that consists of state chunks. It holds a reference to each. The list of slots ends
/// with the last slot that was given.
class ChunkMaterial : public ChunkMaterialBase
{
    typedef ChunkMaterialBase Inherited;

public:
    /// Appends the chunk. The caller has to begin and end the edit. Deliberate: null is refused and
    /// the result is false, so that the list has no null handles.
    bool addChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    /// Deliberate: returns true, with a warning, if the chunk was NOT found, and false if it was
    /// removed.
    bool subChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    /// Returns the index of the chunk, or -1 if it is not in the list.
    Int32 find(StateChunkPtr chunk) const;
    /// Returns the chunk of exactly this type in the slot, or null if there is none.
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
