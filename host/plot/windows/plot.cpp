// The library that draws is not there on Windows; whoever asks for a plot is told so.
#include "host/plot/plot.h"

#include <algorithm>
#include <array>

namespace host
{
bool isPlotFile(const std::string& path)
{
    std::string ending = path.substr(std::max<std::size_t>(path.size(), 4) - 4);
    std::ranges::transform(ending, ending.begin(), [](char c) { return c | 0x20; });
    return std::ranges::count(std::array{".png", ".pdf", ".svg"}, ending) == 1;
}

Plotted plotDrawing(AcDbDatabase&, const std::string& path)
{
    return {.error = path + ": cannot be plotted: arxhost draws on Linux only", .leftOut = {}};
}
}  // namespace host
