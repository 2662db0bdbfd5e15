// A drawing's file as bytes.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "host/dxf/error.h"

namespace host::dxf
{
struct WholeFile
{
    std::unique_ptr<char[]> bytes;  // with room for one more
    std::size_t size;
};

// Never hangs at a pipe. Throws an Error for what is no file or cannot be read.
WholeFile readWholeFile(const std::string& path);
}  // namespace host::dxf
