// Reads the bytes of a drawing's file.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "host/dxf/error.h"

namespace host::dxf
{
struct WholeFile
{
    std::unique_ptr<char[]> bytes;  // with room for one byte more
    std::size_t size;
};

// Reads a file. Never waits at a pipe. Throws an Error if `path` is not a regular file or cannot be
// read.
WholeFile readWholeFile(const std::string& path);
}  // namespace host::dxf
