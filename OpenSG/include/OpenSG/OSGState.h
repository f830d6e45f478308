#pragma once

#include <OpenSG/OSGStateBase.h>
#include <OpenSG/OSGStateChunk.h>

OSG_BEGIN_NAMESPACE

/// The chunks that a material sets. The first edit of a material creates its State.
class State : public StateBase
{
    typedef StateBase Inherited;

public:
    /// Slots distinguish chunks of the same type. AutoSlot selects the next free slot,
    /// AutoSlotReplace the first slot.
    static constexpr Int32 AutoSlot = -1;
    static constexpr Int32 AutoSlotReplace = -2;

    /// The state holds a reference to each chunk. Returns false for null.
    bool addChunk(const StateChunkPtr &chunk, Int32 slot = AutoSlotReplace);
    void clearChunks();
    /// The chunk of exactly this type in the slot; null if there is none.
    StateChunkPtr getChunk(const FieldContainerType &type, UInt32 slot = 0) const;

protected:
    friend class FieldContainer;

    State() = default;
    State(const State &) = default;
    ~State() override = default;

private:
    UInt32 findSlot(const FieldContainerType &type, Int32 slot) const;
};

OSG_END_NAMESPACE
