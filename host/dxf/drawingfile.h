// Drawings as files: opens, makes and saves databases.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dbmain.h"
#include "host/dxf/progress.h"
#include "host/basics/result.h"

namespace host
{
struct OpenedDrawing
{
    std::unique_ptr<AcDbDatabase> database;
    std::string warning{};  // one line on what was repaired, if anything
};

// A failure tells the line of the file and what was expected there.
Result<OpenedDrawing> openDrawing(const std::string& path, const Progress& progress = {});

// A new, empty, metric drawing (R2013).
std::unique_ptr<AcDbDatabase> newDrawing();

// Writes what the drawing was opened from with the changes made since; whatever was not changed
// stays as it was, tag for tag. All or nothing: after a failure the old file is whole.
Result<> saveDrawing(AcDbDatabase& database, const std::string& path,
                     const Progress& progress = {});

// Whether this has the value of another moment tells whether saving would write the same as then.
std::uint64_t digestOfChanges(AcDbDatabase& database);

// What the release of the drawing's file cannot hold and saving leaves out, a line for each.
std::vector<std::string> lossesOnSaving(const AcDbDatabase& database);
}  // namespace host
