// Plots drawings.
#pragma once

#include <string>

#include "dbmain.h"
#include "host/dxf/progress.h"
#include "host/basics/result.h"

namespace host
{
// The result of a plot.
struct Plotted
{
    std::string leftOut;  // the entities that could not be drawn, as "1 IMAGE, 2 MESH"
};

// Tells whether the name ends in ".png", ".pdf" or ".svg", in any letter case.
bool isPlotFile(const std::string& path);

// Plots the whole model space as it would be saved, in the direction of the drawing's view, on
// white paper. Writes the whole file or nothing. A failure has a line for the user.
Result<Plotted> plotDrawing(AcDbDatabase& database, const std::string& path,
                            const Progress& progress = {});
}  // namespace host
