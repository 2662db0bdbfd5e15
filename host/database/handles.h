// The handles of a drawing's objects.
#pragma once

#include <algorithm>
#include <cstdint>

namespace host
{
// Gives each handle only once: the next handle lies above all that were given or are known to be in
// use. The handle 0 means that an object has no handle.
class Handles
{
public:
    std::uint64_t take() { return m_next++; }
    std::uint64_t next() const { return m_next; }
    // Ensures that no handle below `next` is given from now on.
    void startAt(std::uint64_t next) { m_next = std::max(m_next, next); }

private:
    std::uint64_t m_next = 1;
};
}  // namespace host
