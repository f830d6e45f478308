#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cstddef>
#include <vector>

OSG_BEGIN_NAMESPACE

/// A growing block of bytes. Fields are written to it and read from it in the same order. Numbers
/// have the byte order of the machine.
class BinaryDataHandler
{
public:
    void put(const void *source, std::size_t size);
    /// Reading beyond the end gives zeros.
    void get(void *target, std::size_t size);

    template <class T> void putValue(const T &value) { put(&value, sizeof(T)); }
    template <class T> void getValue(T &value) { get(&value, sizeof(T)); }

    /// Bytes written so far.
    std::size_t getSize() const { return _bytes.size(); }
    /// Bytes still to be read.
    std::size_t getRest() const { return _bytes.size() - _readPosition; }

private:
    std::vector<UInt8> _bytes;
    std::size_t _readPosition = 0;
};

OSG_END_NAMESPACE
