#include <OpenSG/OSGChunkMaterial.h>

#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <unordered_map>
#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

// Type id to the indices of the chunks of that type, in the order of their slots.
typedef std::unordered_map<UInt32, std::vector<UInt32>> IndicesByType;

IndicesByType indicesByType(const MFStateChunkPtr &chunks)
{
    IndicesByType indices;
    for (UInt32 i = 0; i < chunks.size(); ++i) {
        if (chunks[i]) {
            indices[chunks[i]->getType().getId()].push_back(i);
        }
    }
    return indices;
}

} // namespace

bool ChunkMaterial::addChunk(StateChunkPtr chunk, Int32 slot)
{
    if (!chunk) {
        return false;
    }
    if (slot != State::AutoSlotReplace) {
        _mfSlots.resize(_mfChunks.size(), State::AutoSlotReplace);
        _mfSlots.push_back(slot);
    }
    _mfChunks.push_back(chunk);
    _heldChunks.follow(_mfChunks);
    return true;
}

bool ChunkMaterial::subChunk(StateChunkPtr chunk, Int32 slot)
{
    for (UInt32 i = 0; i < _mfChunks.size(); ++i) {
        if (_mfChunks[i] == chunk && slotOf(i) == slot) {
            _mfChunks.erase(_mfChunks.begin() + i);
            if (i < _mfSlots.size()) {
                _mfSlots.erase(_mfSlots.begin() + i);
            }
            _heldChunks.follow(_mfChunks);
            return false;
        }
    }
    SWARNING << "ChunkMaterial::subChunk: " << chunk << " is not one of my chunks!" << endLog;
    return true;
}

Int32 ChunkMaterial::find(StateChunkPtr chunk) const
{
    const auto found = _mfChunks.find(chunk);
    return found != _mfChunks.end() ? static_cast<Int32>(found - _mfChunks.begin()) : -1;
}

StateChunkPtr ChunkMaterial::find(const FieldContainerType &type, Int32 slot) const
{
    for (UInt32 i = 0; i < _mfChunks.size(); ++i) {
        if (_mfChunks[i] && _mfChunks[i]->getType() == type && slotOf(i) == slot) {
            return _mfChunks[i];
        }
    }
    return NullFC;
}

void ChunkMaterial::clearChunks()
{
    _mfChunks.clear();
    _mfSlots.clear();
    _heldChunks.follow(_mfChunks);
}

// The result is the same as that of State::addChunk for each chunk. That function searches the
// whole list each time.
void ChunkMaterial::fillState(State &state)
{
    MFStateChunkPtr &chunks = state.getChunks();
    IndicesByType taken = indicesByType(chunks);
    for (UInt32 i = 0; i < _mfChunks.size(); ++i) {
        if (const StateChunkPtr chunk = _mfChunks[i]) {
            std::vector<UInt32> &indices = taken[chunk->getType().getId()];
            const Int32 slot = slotOf(i) == State::AutoSlotReplace ? 0 : slotOf(i);
            if (slot >= 0 && static_cast<UInt32>(slot) < indices.size()) {
                chunks[indices[slot]] = chunk;
            } else {
                indices.push_back(chunks.size());
                chunks.push_back(chunk);
            }
        }
    }
    state.changed(State::ChunksFieldMask, ChangedOrigin::Abstract);
}

bool ChunkMaterial::hasTransparentPart() const
{
    return std::any_of(_mfChunks.begin(), _mfChunks.end(),
        [](const StateChunkPtr &chunk) { return chunk && chunk->isTransparent(); });
}

Int32 ChunkMaterial::slotOf(UInt32 index) const
{
    return index < _mfSlots.size() ? _mfSlots[index] : State::AutoSlotReplace;
}

OSG_END_NAMESPACE
