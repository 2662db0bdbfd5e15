// How the host stops a module that breaks a rule of the interface.
#pragma once

#include <string_view>

namespace host
{
// Ends the run with status 1 after one line on standard error that names the call.
// Whatever was printed before is flushed; nothing is saved, so no file is damaged.
[[noreturn]] void breach(std::string_view call, std::string_view what);
}  // namespace host
