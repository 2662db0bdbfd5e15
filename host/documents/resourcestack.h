// Keeps the resource handles that were current before.
#pragma once

#include <vector>

#include "windows.h"

namespace host
{
// Makes a handle current with push and the former handle current again with pop.
class ResourceStack
{
public:
    void push(HINSTANCE resources);
    // Ends the run when no handle was pushed.
    void pop();
    // Returns the number of handles that have been pushed and not popped.
    std::size_t depth() const { return m_former.size(); }

private:
    std::vector<HINSTANCE> m_former;
};
}  // namespace host
