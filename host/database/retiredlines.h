// Keeps lines that were closed a moment ago.
#pragma once

#include <array>
#include <cstddef>

class AcDbLine;

namespace host
{
// Modules still ask a closed line for its id, draw it and close it a second time. So the heap
// object of a line outlives its close until seven more lines are closed or it is taken.
class RetiredLines
{
public:
    RetiredLines() = default;
    ~RetiredLines();
    RetiredLines(const RetiredLines&) = delete;
    RetiredLines& operator=(const RetiredLines&) = delete;

    // Adds a closed line [adopted] and deletes the line whose place it takes.
    void add(AcDbLine* line);
    // Returns the line that would be deleted next, so that another line can be opened in its place,
    // or nullptr if there is no line. The caller owns it.
    AcDbLine* take();

private:
    std::array<AcDbLine*, 8> m_ring{};
    std::size_t m_next = 0;
};
}  // namespace host
