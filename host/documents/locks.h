// The locks of one document.
#pragma once

#include <vector>

#include "acdocman.h"

namespace host
{
// Keeps the nested locks. The newest lock is in effect; when it is removed, the one before it is in
// effect again.
class Locks
{
public:
    void push(AcAp::DocLockMode mode) { m_modes.push_back(mode); }
    // Removes the newest lock, which must exist.
    void pop() { m_modes.pop_back(); }
    std::size_t depth() const { return m_modes.size(); }
    // Returns the mode in effect, or kNotLocked without a lock.
    AcAp::DocLockMode mode() const { return modeAt(depth()); }
    // Returns the mode that is in effect after the newest lock, which must exist, has been removed.
    AcAp::DocLockMode modeBelow() const { return modeAt(depth() - 1); }

private:
    AcAp::DocLockMode modeAt(std::size_t depth) const
    {
        return depth > 0 ? m_modes[depth - 1] : AcAp::kNotLocked;
    }

    std::vector<AcAp::DocLockMode> m_modes;
};
}  // namespace host
