// Reports the progress of long work.
#pragma once

#include <functional>

namespace host
{
// Receives the completed part, from 0 to 1, about a hundred times and never less than before. The
// host ignores an empty function. The function must not throw.
using Progress = std::function<void(double part)>;

// Returns the progress function for one part of longer work, which takes the whole from `from` to
// `to`.
inline Progress partOf(const Progress& whole, double from, double to)
{
    return whole ? [=](double part) { whole(from + (to - from) * part); } : Progress();
}
}  // namespace host
