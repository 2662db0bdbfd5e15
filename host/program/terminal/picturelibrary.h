// The library in which arxhost keeps everything that calls the drawing library of the system.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/basics/result.h"
#include "host/plot/ink.h"
#include "windows.h"

namespace host
{
// The functions that the program calls there. They have the names of the functions in plot/ and
// pictures/.
struct PictureLibrary
{
    std::unique_ptr<plot::Ink> (*openInk)(const plot::Sheet& sheet);
    double (*textWidth)(std::wstring_view text);
    Result<std::string> (*drawDialog)(HWND dialog);
};

// The object that the library exports.
extern "C" __attribute__((visibility("default"))) const PictureLibrary arxhostPictures;
}  // namespace host
