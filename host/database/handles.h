// The handles of a drawing's objects.
#pragma once

#include <algorithm>
#include <cstdint>

namespace host
{
// A handle is given once: the next one lies above all that were given or are known to be taken. 0
// is no handle.
class Handles
{
public:
    std::uint64_t take() { return m_next++; }
    std::uint64_t next() const { return m_next; }
    // Nothing below is given from now on.
    void startAt(std::uint64_t next) { m_next = std::max(m_next, next); }

private:
    std::uint64_t m_next = 1;
};
}  // namespace host
