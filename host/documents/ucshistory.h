// Coordinate systems that were current before, of one document.
#pragma once

#include <vector>

#include "host/database/drawingstate.h"

namespace host
{
// Ten of model space and ten of paper space, each list taken back from its own end.
class UcsHistory
{
public:
    void push(const DrawingState& state);
    // False when the list of the current space is empty.
    bool pop(const DrawingState& state, Ucs& former);

private:
    static const std::size_t limit = 10;

    std::vector<Ucs>& of(const DrawingState& state) { return state.paperSpace ? m_paper : m_model; }

    std::vector<Ucs> m_model;
    std::vector<Ucs> m_paper;
};
}  // namespace host
