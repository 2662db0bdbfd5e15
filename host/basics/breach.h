// Stops a module that breaks a rule of the interface.
#pragma once

#include <string_view>

namespace host
{
// Writes one line to standard error that names the call, and ends the run with status 1. Earlier
// output is flushed first. Nothing is saved, so no file is damaged.
[[noreturn]] void breach(std::string_view call, std::string_view what);
}  // namespace host
