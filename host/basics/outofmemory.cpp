#include "host/basics/outofmemory.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace host
{
void endWithoutMemory()
{
    std::fflush(stdout);
    std::fprintf(stderr, "arxhost: %.*s\n", int(notEnoughMemory.size()), notEnoughMemory.data());
    std::_Exit(EXIT_FAILURE);
}

NoThrowing::NoThrowing() : m_former(std::set_new_handler(endWithoutMemory)) {}

NoThrowing::~NoThrowing()
{
    std::set_new_handler(m_former);
}
}  // namespace host
