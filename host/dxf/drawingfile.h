// Opens, creates and saves drawings as files.
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
    std::string warning{};  // one line about the repairs; empty if the file needed none
};

// Opens a drawing. The failure of a damaged file names the line of the file and what was expected
// there.
Result<OpenedDrawing> openDrawing(const std::string& path, const Progress& progress = {});

// Creates a new, empty, metric drawing (R2013).
std::unique_ptr<AcDbDatabase> newDrawing();

// Saves the drawing: the file from which it was opened, with the changes made since. Everything
// unchanged stays as it was, tag for tag. After a failure the old file is whole.
Result<> saveDrawing(AcDbDatabase& database, const std::string& path,
                     const Progress& progress = {});

// Returns a number that identifies the unsaved changes. Two calls return the same number when
// saving would write the same bytes at both moments.
std::uint64_t digestOfChanges(AcDbDatabase& database);

// Returns one line for each thing that saving leaves out because the release of the drawing's file
// cannot hold it.
std::vector<std::string> lossesOnSaving(const AcDbDatabase& database);
}  // namespace host
