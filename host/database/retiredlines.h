// Lines that were closed a moment ago.
#pragma once

#include <array>
#include <cstddef>

class AcDbLine;

namespace host
{
// Makers of entities still ask a closed line for its id, draw it and close it a second time, so its
// heap object outlives the close for a while: until seven more lines are closed or it is taken.
class RetiredLines
{
public:
    RetiredLines() = default;
    ~RetiredLines();
    RetiredLines(const RetiredLines&) = delete;
    RetiredLines& operator=(const RetiredLines&) = delete;

    // [adopted]
    void add(AcDbLine* line);
    // The one that would go next, for another line to be opened in its place; null when there is
    // none. It is the caller's.
    AcDbLine* take();

private:
    std::array<AcDbLine*, 8> m_ring{};
    std::size_t m_next = 0;
};
}  // namespace host
