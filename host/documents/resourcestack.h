// The resource handles that were current before.
#pragma once

#include <vector>

#include "windows.h"

namespace host
{
// Each push makes a handle current, and its pop makes the former handle current again.
class ResourceStack
{
public:
    void push(HINSTANCE resources);
    // Ends the run when nothing was pushed.
    void pop();
    // How many handles have been pushed and not popped.
    std::size_t depth() const { return m_former.size(); }

private:
    std::vector<HINSTANCE> m_former;
};
}  // namespace host
