#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <cstddef>

OSG_BEGIN_NAMESPACE

/// The block of memory of a container begins with this header. The object follows.
struct alignas(std::max_align_t) FieldContainer::Header
{
    Int32 refCount = 0;
    UInt32 id = 0;
    FieldContainer *nextToGo = nullptr;
};

inline FieldContainer::Header &FieldContainer::header()
{
    return *(reinterpret_cast<Header *>(this) - 1);
}

OSG_END_NAMESPACE
