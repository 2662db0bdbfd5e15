// Why a drawing cannot be read or saved.
#pragma once

#include <stdexcept>
#include <string>

namespace host::dxf
{
// Thrown; what() is one line for the user, without a line ending, that begins with the file's name.
struct Error : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

// `what` is wrong with the file of that path.
[[noreturn]] inline void fail(const std::string& path, const std::string& what)
{
    throw Error(path + ": " + what);
}
}  // namespace host::dxf
