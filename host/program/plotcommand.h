// The command PLOT.
#pragma once

namespace host
{
void registerPlot();
}  // namespace host
