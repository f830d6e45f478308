#pragma once

#include <OpenSG/OSGStateBase.h>
#include <OpenSG/OSGStateChunk.h>

OSG_BEGIN_NAMESPACE

/// The chunks that a material sets, as its State. Materials make theirs on their first edit.
class State : public StateBase
{
    typedef StateBase Inherited;

public:
    /// Slots tell chunks of one type apart. AutoSlot takes the next free one, AutoSlotReplace
    /// the first.
    static constexpr Int32 AutoSlot = -1;
    static constexpr Int32 AutoSlotReplace = -2;

    /// The state holds a reference to each chunk. Null is refused with false.
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
