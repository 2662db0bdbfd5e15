// Long work tells how far it has come.
#pragma once

#include <functional>

namespace host
{
// From 0 to 1, some hundred times and never less than before. An empty one is not called; nothing
// is thrown.
using Progress = std::function<void(double part)>;

// A part of longer work, as its progress: from `from` to `to` of the whole.
inline Progress partOf(const Progress& whole, double from, double to)
{
    return whole ? [=](double part) { whole(from + (to - from) * part); } : Progress();
}
}  // namespace host
