// Resource handles that are current for a while.
#pragma once

#include <vector>

#include "windows.h"

namespace host
{
// Each push makes a handle current; the pop that belongs to it brings back the one before.
class ResourceStack
{
public:
    void push(HINSTANCE resources);
    // A pop without its push ends the run.
    void pop();
    std::size_t depth() const { return m_former.size(); }

private:
    std::vector<HINSTANCE> m_former;
};
}  // namespace host
