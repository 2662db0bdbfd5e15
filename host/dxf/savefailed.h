// Reports that a drawing cannot be saved, with the same words on every system.
#pragma once

#include <cerrno>
#include <cstring>
#include <string>

#include "host/dxf/error.h"

namespace host::dxf
{
// Throws an Error that gives the reason.
[[noreturn]] inline void failSaving(const std::string& path, const std::string& why)
{
    throw Error(path + ": cannot be saved: " + why);
}

// Throws an Error unless `done`. The reason is the errno of the last call of the C library.
inline void requireSaved(bool done, const std::string& path)
{
    if (!done)
    {
        failSaving(path, std::strerror(errno));
    }
}
}  // namespace host::dxf
