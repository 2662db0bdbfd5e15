// The blocks of memory that the module has to give back: those that it asked for itself, by any
// call, and texts that the host hands out.
#pragma once

#include <cstddef>
#include <vector>

namespace faults
{
struct Leak
{
    std::size_t size;
    int call;  // number of the host's call that came before it
};

// Not where the address sanitizer has calls of its own in their place.
extern const bool blocksAreNoted;

// From here on blocks are noted, once a process; those of before do not count.
void noteBlocks();

// What nobody has given back since. Ends the noting.
std::vector<Leak> leaks();
}  // namespace faults
