// Tracks the blocks of memory that the module must free: blocks that it requested itself, by any
// call, and texts that the host returned to it.
#pragma once

#include <cstddef>
#include <vector>

namespace faults
{
struct Leak
{
    std::size_t size;
    int call;  // the number of the host's call before it
};

// False where the address sanitizer replaces the same calls.
extern const bool blocksAreNoted;

// Starts to record blocks, once in a process. Earlier blocks are ignored.
void noteBlocks();

// Returns the blocks that have not been freed since, and ends the recording.
std::vector<Leak> leaks();
}  // namespace faults
