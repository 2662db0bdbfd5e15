// The reason why a drawing cannot be read or saved.
#pragma once

#include <stdexcept>
#include <string>

namespace host::dxf
{
// The exception of this folder. what() is one line for the user, without a line ending, and begins
// with the file's name.
struct Error : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

// Throws an Error that tells what is wrong with the file at `path`.
[[noreturn]] inline void fail(const std::string& path, const std::string& what)
{
    throw Error(path + ": " + what);
}
}  // namespace host::dxf
