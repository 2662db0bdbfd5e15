// The locks of one document.
#pragma once

#include <vector>

#include "acdocman.h"

namespace host
{
// Locks nest: the newest counts, and the one before it counts again when the newest goes.
class Locks
{
public:
    void push(AcAp::DocLockMode mode) { m_modes.push_back(mode); }
    // Takes the newest lock off. There must be one.
    void pop() { m_modes.pop_back(); }
    std::size_t depth() const { return m_modes.size(); }
    // The mode that counts; kNotLocked without a lock.
    AcAp::DocLockMode mode() const { return modeAt(depth()); }
    // The mode that counts after the newest lock has gone. There must be one.
    AcAp::DocLockMode modeBelow() const { return modeAt(depth() - 1); }

private:
    AcAp::DocLockMode modeAt(std::size_t depth) const
    {
        return depth > 0 ? m_modes[depth - 1] : AcAp::kNotLocked;
    }

    std::vector<AcAp::DocLockMode> m_modes;
};
}  // namespace host
