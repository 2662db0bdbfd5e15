#include "host/basics/breach.h"

#include <cstdio>
#include <cstdlib>

namespace host
{
void breach(std::string_view call, std::string_view what)
{
    std::fflush(stdout);
    std::fprintf(stderr, "arxhost: %.*s: %.*s\n", int(call.size()), call.data(), int(what.size()),
                 what.data());
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}
}  // namespace host
