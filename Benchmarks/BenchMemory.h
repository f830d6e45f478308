#pragma once

#include <cstddef>

/// Counts the memory that the program and its shared libraries get from operator new. Each block
/// counts with its usable size.
namespace BenchMemory {

void startCounting();
/// The highest number of bytes in use since startCounting(), less those in use at that time.
std::size_t peak();
/// Stops counting, so that allocations take their usual time.
void stopCounting();

}
