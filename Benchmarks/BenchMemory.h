#pragma once

#include <cstddef>

/// Counts what the program takes from operator new, as the sizes that the allocator really gives.
/// For the whole executable, shared libraries included.
namespace BenchMemory {

/// Most bytes in use at any one time since this was called, above what was in use then.
void startCounting();
std::size_t peak();
/// Allocations are not counted any more, so they take their usual time.
void stopCounting();

}
