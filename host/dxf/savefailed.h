// How saving a drawing fails, on every system.
#pragma once

#include <cerrno>
#include <cstring>
#include <string>

#include "host/dxf/error.h"

namespace host::dxf
{
[[noreturn]] inline void failSaving(const std::string& path, const std::string& why)
{
    throw Error(path + ": cannot be saved: " + why);
}

// With the reason that the last call of the C library has left.
inline void requireSaved(bool done, const std::string& path)
{
    if (!done)
    {
        failSaving(path, std::strerror(errno));
    }
}
}  // namespace host::dxf
