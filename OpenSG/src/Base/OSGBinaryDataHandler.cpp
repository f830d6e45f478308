#include <OpenSG/OSGBinaryDataHandler.h>

#include <algorithm>
#include <cstring>

OSG_BEGIN_NAMESPACE

void BinaryDataHandler::put(const void *source, std::size_t size)
{
    const auto *bytes = static_cast<const UInt8 *>(source);
    _bytes.insert(_bytes.end(), bytes, bytes + size);
}

void BinaryDataHandler::get(void *target, std::size_t size)
{
    const std::size_t available = std::min(size, _bytes.size() - _readPosition);
    auto *bytes = static_cast<UInt8 *>(target);
    std::copy_n(_bytes.begin() + static_cast<std::ptrdiff_t>(_readPosition), available, bytes);
    std::fill_n(bytes + available, size - available, UInt8(0));
    _readPosition += available;
}

OSG_END_NAMESPACE
