#include <OpenSG/OSGState.h>

OSG_BEGIN_NAMESPACE

bool State::addChunk(const StateChunkPtr &chunk, Int32 slot)
{
    if (!chunk) {
        return false;
    }
    const UInt32 index = findSlot(chunk->getType(), slot == AutoSlotReplace ? 0 : slot);
    if (index < _mfChunks.size()) {
        _mfChunks[index] = chunk;
    } else {
        _mfChunks.push_back(chunk);
    }
    _heldChunks.follow(_mfChunks);
    return true;
}

void State::clearChunks()
{
    _mfChunks.clear();
    _heldChunks.follow(_mfChunks);
}

StateChunkPtr State::getChunk(const FieldContainerType &type, UInt32 slot) const
{
    const UInt32 index = findSlot(type, static_cast<Int32>(slot));
    return index < _mfChunks.size() ? _mfChunks[index] : StateChunkPtr();
}

// Returns the index of the chunk of this type in this slot, or the size of the list if there is
// none. The chunks of a type are in the order of their slots.
UInt32 State::findSlot(const FieldContainerType &type, Int32 slot) const
{
    UInt32 index = 0;
    for (; index < _mfChunks.size(); ++index) {
        if (_mfChunks[index] && _mfChunks[index]->getType() == type && slot-- == 0) {
            break;
        }
    }
    return index;
}

OSG_END_NAMESPACE
