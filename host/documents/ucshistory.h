// The coordinate systems that were current before in one document.
#pragma once

#include <vector>

#include "host/database/drawingstate.h"

namespace host
{
// Two lists of at most ten, one of model space and one of paper space; the newest comes back first.
class UcsHistory
{
public:
    // Adds the current UCS to the list of the current space. The oldest of more than ten goes.
    void push(const DrawingState& state);
    // Takes the newest former UCS off that list. False when the list is empty; former is as it was
    // then.
    bool pop(const DrawingState& state, Ucs& former);

private:
    static const std::size_t limit = 10;

    std::vector<Ucs>& of(const DrawingState& state) { return state.paperSpace ? m_paper : m_model; }

    std::vector<Ucs> m_model;
    std::vector<Ucs> m_paper;
};
}  // namespace host
