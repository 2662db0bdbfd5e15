// The host's own function behind one that the test program has put in its place.
#pragma once

#include <dlfcn.h>

// The program comes before the host's library, so a function that it defines is the one that the
// module calls; the next one of that name is the host's. Function is its type.
template <class Function>
Function* original(const char* mangledName)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, mangledName));
}
