#include "BenchMemory.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

bool isCounting = false;
std::ptrdiff_t current = 0;
std::ptrdiff_t highest = 0;

void *take(std::size_t size)
{
    void *memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    if (isCounting) {
        current += std::ptrdiff_t(malloc_usable_size(memory));
        highest = current > highest ? current : highest;
    }
    return memory;
}

void giveBack(void *memory)
{
    if (isCounting && memory)
        current -= std::ptrdiff_t(malloc_usable_size(memory));
    std::free(memory);
}

}

void *operator new(std::size_t size)
{
    return take(size);
}

void *operator new[](std::size_t size)
{
    return take(size);
}

void operator delete(void *memory) noexcept
{
    giveBack(memory);
}

void operator delete[](void *memory) noexcept
{
    giveBack(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    giveBack(memory);
}

void operator delete[](void *memory, std::size_t) noexcept
{
    giveBack(memory);
}

void BenchMemory::startCounting()
{
    current = highest = 0;
    isCounting = true;
}

std::size_t BenchMemory::peak()
{
    return std::size_t(highest);
}

void BenchMemory::stopCounting()
{
    isCounting = false;
}
