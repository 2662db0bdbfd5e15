// Keeps the coordinate systems that were current before in one document.
#pragma once

#include <vector>

#include "host/database/drawingstate.h"

namespace host
{
// Keeps two lists of at most ten systems, one for model space and one for paper space. The newest
// system is returned first.
class UcsHistory
{
public:
    // Adds the current UCS to the list of the current space and removes the oldest of more than
    // ten.
    void push(const DrawingState& state);
    // Removes the newest former UCS of the current space from its list and sets `former` to it.
    // Returns false when the list is empty; `former` is unchanged then.
    bool pop(const DrawingState& state, Ucs& former);

private:
    static const std::size_t limit = 10;

    std::vector<Ucs>& of(const DrawingState& state) { return state.paperSpace ? m_paper : m_model; }

    std::vector<Ucs> m_model;
    std::vector<Ucs> m_paper;
};
}  // namespace host
