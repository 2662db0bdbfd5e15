// Drawings on paper.
#pragma once

#include <string>

#include "dbmain.h"
#include "host/dxf/progress.h"
#include "host/runtime/result.h"

namespace host
{
struct Plotted
{
    std::string leftOut;  // "1 IMAGE, 2 MESH": what could not be drawn
};

// Whether the name ends in ".png", ".pdf" or ".svg", in either case.
bool isPlotFile(const std::string& path);

// Model space as it would be saved, looked at as in the drawing's view, all of it, on white paper.
// Writes the whole file or nothing.
Result<Plotted> plotDrawing(AcDbDatabase& database, const std::string& path,
                            const Progress& progress = {});
}  // namespace host
