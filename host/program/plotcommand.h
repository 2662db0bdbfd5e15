// The command PLOT.
#pragma once

namespace host
{
// Adds the command to the host's commands.
void registerPlot();
}  // namespace host
