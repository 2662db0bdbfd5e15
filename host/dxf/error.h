// Why a drawing cannot be read or saved.
#pragma once

#include <stdexcept>

namespace host::dxf
{
// Thrown; what() is one line for the user, without a line ending, that begins with the file's name.
struct Error : std::runtime_error
{
    using std::runtime_error::runtime_error;
};
}  // namespace host::dxf
